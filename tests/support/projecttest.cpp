#include "support/projecttest.h"

#include "project/parameterwork.h"

#include <QFile>

bool ProjectTest::Load(const QString& path)
{
    version = "untouched"_s;
    return project.LoadProjectFromFile(QFile::encodeName(path).constData(), version, nullptr);
}

bool ProjectTest::LoadText(const QByteArray& elements)
{
    const QByteArray document = "<?xml version='1.0'?><LedSetting>" + elements + "</LedSetting>";
    return Load(folder.Write("a.xml"_s, document));
}

QByteArray ProjectTest::Document()
{
    EXPECT_TRUE(Save(folder.Path("document.prj"_s)));
    return ReadFile(parameterwork::DocumentPath());
}
