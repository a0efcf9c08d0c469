#include "program.h"

#include "designview.h"
#include "mainwindow.h"
#include "pageform.h"
#include "settingsactions.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>

Program::Program()
{
    Translate();
}

Program::~Program() = default;

/// The texts of the library are Chinese by themselves, those of the program and of Qt are English. The
/// program's lie beside the library's.
void Program::Translate()
{
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_qt);
    CConfigData& config = *GetConfigData();
    const ELanguageType language = config.GetLanguageType();
    config.SetLanguage(LanguageEnglish);
    const QString english = config.GetTranslationPath();
    config.SetLanguage(language);
    const bool isChinese = language == LanguageChinese;
    if (m_texts.load(isChinese ? QFileInfo(english).path() + QStringLiteral("/orvan-designer_zh.qm")
                               : config.GetTranslationPath()))
        QCoreApplication::installTranslator(&m_texts);
    if (isChinese
        && m_qt.load(QStringLiteral("qtbase_zh_CN"), QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
}

void Program::Show()
{
    m_window = std::make_unique<MainWindow>(m_document);
    connect(&m_window->GetSettings(), &SettingsActions::LanguageChanged, this, &Program::MakeAnew,
            Qt::QueuedConnection); // the menu of the window before is at work
    m_window->show();
}

/// The one before goes last, so that there always is a window.
void Program::MakeAnew()
{
    PageForm::FinishTyping();
    Translate();
    const ViewMap map = m_window->GetView().GetMap();
    const double scaling = map.GetScaling();
    const QPoint start = map.GetStart();
    m_window->KeepLayout();
    const std::unique_ptr<MainWindow> before = std::move(m_window);
    Show();
    m_window->GetView().ShowAs(scaling, start);
}
