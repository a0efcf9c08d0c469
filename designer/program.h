#pragma once

#include "documentcontroller.h"

#include <QTranslator>

#include <memory>

class MainWindow;

/// The open document and its window, which is made anew in another language while the document stays. Lives
/// between LedNimbraData_Init and LedNimbraData_Release.
class Program : public QObject
{
    Q_OBJECT

public:
    Program();
    ~Program() override;

    void Show(); ///< before the window is asked for
    DocumentController& GetDocument() { return m_document; }
    MainWindow& GetWindow() { return *m_window; }

private:
    void Translate();
    void MakeAnew();

    QTranslator m_texts; ///< of the program, or of the library
    QTranslator m_qt;
    DocumentController m_document;
    std::unique_ptr<MainWindow> m_window;
};
