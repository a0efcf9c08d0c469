#include "support/testfolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TestFolder::TestFolder() : m_folder(QDir::tempPath() + "/orvan 屏XXXXXX"_s)
{
    Q_ASSERT(m_folder.isValid());
}

QString TestFolder::Path(const QString& name) const
{
    return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
}

QString TestFolder::Write(const QString& name, const QByteArray& content) const
{
    return WriteFile(Path(name), content);
}

QString WriteFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    Q_ASSERT(written);
    Q_UNUSED(written)
    return path;
}

bool SetFileTime(const QString& path, const QDateTime& modified)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.setFileTime(modified, QFileDevice::FileModificationTime);
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString SamplePath(const char* name)
{
    return QStringLiteral(ORVAN_SAMPLES "/") + QString::fromUtf8(name);
}
