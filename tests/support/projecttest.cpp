#include "support/projecttest.h"

#include "project/parameterwork.h"

#include <QFile>

bool ProjectTest::Load(const QString& path)
{
    version = QStringLiteral("untouched");
    return project.LoadProjectFromFile(QFile::encodeName(path).constData(), version, nullptr);
}

bool ProjectTest::LoadText(const QByteArray& elements)
{
    const QByteArray document = "<?xml version=\"1.0\"?><LedSetting>" + elements + "</LedSetting>";
    return Load(folder.Write(QStringLiteral("a.xml"), document));
}

QByteArray ProjectTest::Document()
{
    EXPECT_TRUE(Save(folder.Path(QStringLiteral("document.prj"))));
    return ReadFile(parameterwork::DocumentPath());
}
