#pragma once

#include "documentfile.h"

#include <QObject>

class DocumentController;
class QMenu;
class QWidget;

/// New, open, recent, save: what the user is asked before something would be lost, and told when it did not
/// go well.
class FileActions : public QObject
{
    Q_OBJECT

public:
    FileActions(DocumentController& document, QWidget& window); ///< [keep] both

    void AddTo(QMenu& menu);

    void New();
    bool Open(const QString& path); ///< asks to save first
    bool Save();                    ///< under another name when there is none yet
    bool SaveAs();
    bool SaveTo(const QString& path);
    bool MayLeave(); ///< whether what is open may go: saved, not changed, or given up by the user

    /// Where to write what is made of the project. Without an ending it gets that of the filter, "PDF
    /// (*.pdf)".
    static QString AskForPath(QWidget* window, const DocumentFile& file, const QString& title,
                              const QString& tail, const QStringList& filters);

signals:
    void Told(const QString& text); ///< of what went well

private:
    void Choose();
    void FillRecent();
    void Tell(const QString& text);
    bool Read(const QString& path, bool readOnly);

    DocumentController& m_document;
    QWidget& m_window;
    QMenu* m_recent = nullptr;
};
