#pragma once

#include <QObject>

class DocumentController;
class QIODevice;
class QMenu;
class QWidget;

/// What others get of the project: drawings of the current sender, sheets for the crew, lists, and layouts
/// for other projects.
class ExportActions : public QObject
{
    Q_OBJECT

public:
    enum Kind
    {
        Drawing,
        DrawingFromBehind,
        SheetsA4,
        SheetsA3,
        SheetsLetter,
        CabinetList,
        CableSchedule,
        SenderLayout,
        PortLayout,
    };

    ExportActions(const DocumentController& document, QWidget& window); ///< [keep] both

    void AddTo(QMenu& menu);
    bool Export(Kind kind, const QString& path); ///< the ending of the path says the form

signals:
    void Told(const QString& text); ///< of what went well

private:
    void Choose(Kind kind, const QString& title, const QString& tail);
    QString Write(Kind kind, const QString& path);
    bool Make(Kind kind, const QString& ending, QIODevice& device);

    const DocumentController& m_document;
    QWidget& m_window;
};
