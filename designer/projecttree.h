#pragma once

#include <OrvanData/orvandata.h>

#include <QTreeWidget>

class DocumentController;
class SenderEdits;

/// The senders of the project, their ports and the groups on these: which ports are shown and locked, how
/// full each is, which one new cabinets go to. A port that is dragged onto another becomes its backup.
class ProjectTree : public QTreeWidget
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        Shown,
        Locked,
        Load, ///< the fraction is the item's Qt::UserRole
    };

    /// [keep] the document and its edits
    ProjectTree(DocumentController& document, SenderEdits& edits, QWidget* parent);

    void Take(const SDocumentChange& change);
    void RenameCurrent();          ///< the sender, in place
    int GetSelectedSender() const; ///< -1: none

protected:
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* mimeData(const QList<QTreeWidgetItem*> items) const override; ///< [new]
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Fill();
    void FillSender(int index);
    void FillPort(int sender, int port);
    void ShowStates();
    void TakeCurrent(QTreeWidgetItem* item);
    void TakeEdit(QTreeWidgetItem* item, int column);
    void ChooseGroup(QTreeWidgetItem* item);
    QTreeWidgetItem* ItemOf(int sender, int port) const;
    SPortPlace PlaceOf(QTreeWidgetItem* item) const; ///< of a port, or of what is below it; else none
    bool MayDrop(const SPortPlace& backup, const SPortPlace& source, QString* text) const;

    DocumentController& m_document;
    SenderEdits& m_edits;
    bool m_filling = false;
};
