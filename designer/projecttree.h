#pragma once

#include <OrvanData/orvandata.h>

#include <QTreeWidget>

class DocumentController;

/// The senders of the project and their ports: which are shown and locked, how full each is, and which one
/// new cabinets go to.
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

    ProjectTree(DocumentController& document, QWidget* parent); ///< [keep] the document

    void Take(const SDocumentChange& change);
    void RenameCurrent();          ///< the sender, in place
    int GetSelectedSender() const; ///< -1: none

private:
    void Fill();
    void FillSender(int index);
    void FillPort(int sender, int port);
    void ShowStates();
    void TakeCurrent(const QTreeWidgetItem* item);
    void TakeEdit(const QTreeWidgetItem* item, int column);
    QTreeWidgetItem* ItemOf(int sender, int port) const;

    DocumentController& m_document;
    bool m_filling = false;
};
