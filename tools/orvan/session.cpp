#include "session.h"

#include "console.h"

#include <OrvanData/orvandata.h>

#include "custommessagebox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>

namespace {

QString DocumentsLocation()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// Nobody answers a box while a script runs. Its text goes to standard error, and the answer to a question is
/// no.
QMessageBox::StandardButton AnswerBox(CCustomMessageBox::Kind kind, const QString& text,
                                      QMessageBox::StandardButtons /*buttons*/)
{
    Warn(QString(), text);
    return kind == CCustomMessageBox::Question ? QMessageBox::No : QMessageBox::Ok;
}

} // namespace

Session::~Session()
{
    if (!m_started)
        return;
    LedNimbraData_Release();
    CCustomMessageBox::SetHandler({});
    QCoreApplication::removeTranslator(&m_translator);
}

bool Session::Start(const QString& documents, QString* why)
{
    if (!m_private.IsValid()) {
        *why = m_private.ErrorText();
        return false;
    }
    const QString folder = documents.isEmpty() ? m_private.Path("Documents") : documents;
    if (!LeadTo(folder, why))
        return false;
    CCustomMessageBox::SetHandler(AnswerBox);
    LedNimbraData_Init();
    m_started = true;
    Translate();
    return true;
}

bool Session::LeadTo(const QString& documents, QString* why)
{
    if (documents.contains(QLatin1Char('\n')) || !QDir().mkpath(documents)) {
        *why = QStringLiteral("cannot be the documents folder");
        return false;
    }
    // Tells the platform where the documents lie, by the settings of the desktop. The home folder stays, and
    // with it the fonts of the user.
    const QString settings = m_private.Path("config");
    const QString scratch = m_private.Path("tmp");
    QFile file(settings + QStringLiteral("/user-dirs.dirs"));
    const QByteArray line = "XDG_DOCUMENTS_DIR=\"" + QFile::encodeName(documents) + "\"\n";
    if (!QDir().mkpath(settings) || !QDir().mkpath(scratch) || !file.open(QIODevice::WriteOnly)
        || file.write(line) != line.size() || !file.flush()) {
        *why = m_private.Path("") + QStringLiteral(": ")
               + (file.error() == QFileDevice::NoError ? qt_error_string(errno) : file.errorString());
        return false;
    }
    file.close();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings));
    qputenv("TMPDIR", QFile::encodeName(scratch));
    if (QDir::cleanPath(DocumentsLocation()) == QDir::cleanPath(documents))
        return true;
    *why = QStringLiteral("this platform keeps its own documents folder");
    return false;
}

void Session::Translate()
{
    const QString path = GetConfigData()->GetTranslationPath();
    if (!path.isEmpty() && m_translator.load(path))
        QCoreApplication::installTranslator(&m_translator);
}
