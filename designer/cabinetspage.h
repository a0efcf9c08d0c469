#pragma once

#include <QList>
#include <QTimer>
#include <QWidget>

#include <functional>

class CTile;
class DocumentController;
class QLineEdit;

/// Where the selected cabinets are and what they are like. What is typed is done to all of them.
class CabinetsPage : public QWidget
{
    Q_OBJECT

public:
    CabinetsPage(DocumentController& document, QWidget* parent); ///< [keep] the document

protected:
    void showEvent(QShowEvent* event) override;

private:
    using Read = std::function<QString(const QList<CTile*>& tiles)>; ///< empty: they differ
    using Apply = std::function<void(double value)>;
    struct Row
    {
        QLineEdit* field;
        Read read;
    };

    void AddRow(const QString& label, const QString& tip, const Read& read, const Apply& apply);
    void AddRow(const QString& label, const QString& tip, const Read& read); ///< there to read
    void Finish(QLineEdit& field, const Apply& apply);
    void Renew();

    DocumentController& m_document;
    QTimer m_wait; ///< changes that follow each other quickly are shown once
    QList<Row> m_rows;
};
