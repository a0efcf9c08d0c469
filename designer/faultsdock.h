#pragma once

#include <QDockWidget>
#include <QTimer>

class DocumentController;
namespace OrvanTools {
struct Fault;
}
class QListWidget;
class QListWidgetItem;

/// What is wrong with the project, checked anew a moment after each change. Choosing a fault shows the
/// cabinet.
class FaultsDock : public QDockWidget
{
    Q_OBJECT

public:
    FaultsDock(DocumentController& document, QWidget* parent); ///< [keep] the document

    int GetFaultCount() const { return m_count; }

signals:
    void CabinetChosen(const QRect& place); ///< of the current sender, wall pixels

private:
    void Check();
    QString TextOf(const OrvanTools::Fault& fault) const;
    void Choose(const QListWidgetItem* item);

    DocumentController& m_document;
    QListWidget* m_list;
    QTimer m_wait; ///< edits that follow each other quickly are checked once
    int m_count = 0;
};
