#include "common/inputfile.h"

#include "common/fileproblem.h"
#include "common/texts.h"

#include <QFile>
#include <QFileInfo>

bool OpenInput(QFile& file, QString* error)
{
    const QFileInfo info(file.fileName());
    if (info.exists() && !info.isFile())
        return Fail(error, NotRegular(file.fileName()));
    return file.open(QIODevice::ReadOnly) || Fail(error, CannotRead(file.fileName(), file.errorString()));
}

bool ReadInput(const QString& path, qint64 most, QByteArray* content, QString* error)
{
    QFile file(path);
    if (!OpenInput(file, error))
        return false;
    if (file.size() > most)
        return Fail(error, Texts::tr("文件过大。"));
    *content = file.read(file.size());
    return file.error() == QFileDevice::NoError || Fail(error, CannotRead(path, file.errorString()));
}

bool CopyContent(QIODevice& from, QIODevice& to)
{
    QByteArray buffer(1 << 16, Qt::Uninitialized);
    for (;;) {
        const qint64 got = from.read(buffer.data(), buffer.size());
        if (got <= 0)
            return got == 0;
        if (to.write(buffer.constData(), got) != got)
            return false;
    }
}
