#include "designerstory.h"

#include <QDir>
#include <QMimeData>
#include <QWheelEvent>

using FilesStory = DesignerStory;

TEST_F(FilesStory, AProjectIsOpenedLookedAtAndSaved)
{
    EXPECT_EQ(window.windowTitle().toStdString(), "New project[*]");
    const QString path = MakeProject("wall.prj"_s, QSize(12, 6), 2, AutoNumberRowsTopLeft);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QTest::qWait(1);
    EXPECT_EQ(window.windowTitle().toStdString(), "wall.prj[*]");
    EXPECT_TRUE(view.GetMap().GetShown().contains(QRect(0, 0, 1536, 768))) << "all of it is shown";
    EXPECT_EQ(ColorAt({30, 100}), QColor(SceneModel::ColorOf(0).rgb()));
    EXPECT_EQ(ColorAt({1500, 100}), QColor(SceneModel::ColorOf(1).rgb()));
    Picture("opened");

    const QPoint cursor(400, 300);
    const QPointF below = view.GetMap().ToWall(cursor);
    for (int i = 0; i < 5; ++i) {
        QWheelEvent wheel(cursor, view.viewport()->mapToGlobal(cursor), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &wheel);
    }
    const QPointF moved = view.GetMap().ToWall(cursor) - below;
    EXPECT_TRUE(qAbs(moved.x()) < 6 && qAbs(moved.y()) < 6) << "it zooms about the cursor, in whole pixels";
    Picture("zoomed");
    const QPoint start = view.GetMap().GetStart();
    Drag({{700, 400}, {600, 380}}, Qt::NoModifier, Qt::MiddleButton);
    EXPECT_EQ(view.GetMap().GetStart() - start, QPoint(100, 20));

    GetProjectData()->AddGroupInfo(QStringLiteral("A"));
    EXPECT_TRUE(window.isWindowModified());
    ASSERT_TRUE(window.GetFiles().SaveTo(folder.Path("copy.prj"_s)));
    EXPECT_TRUE(window.isWindowModified()) << "the library keeps the mark";
    EXPECT_TRUE(window.GetFiles().MayLeave() && messages.Take().isEmpty()) << "but nothing is asked";
    EXPECT_TRUE(CProjectLock(path).Lock()) << "the first file is free again";
    EXPECT_FALSE(CProjectLock(folder.Path("copy.prj"_s)).Lock());

    document.SelectAll();
    ASSERT_TRUE(document.DeleteSelection());
    GetProjectData()->AddParameterFileInfo("lost"_s, SMD5::FromString(QString(32, QLatin1Char('a'))));
    ASSERT_TRUE(window.GetFiles().SaveTo(path)) << "all but the file that is missing";
    const QString told = messages.Take().join(QString());
    EXPECT_TRUE(told.contains("wall.prj is saved, but not all"_s) && told.contains("lost"_s))
        << qPrintable(told);
    EXPECT_EQ(window.windowTitle().toStdString(), "wall.prj[*]");
    EXPECT_FALSE(CProjectLock(path).Lock());
    EXPECT_TRUE(window.GetFiles().MayLeave() && messages.Take().isEmpty()) << "it is saved";
}

TEST_F(FilesStory, WhatCannotBeOpenedIsToldAndNothingIsLost)
{
    const QString path = MakeProject("wall.prj"_s, QSize(3, 2), 1, 0);
    const QString broken = folder.Write("broken.prj"_s, "PK\3\4 no archive");
    ASSERT_TRUE(window.GetFiles().Open(path));
    EXPECT_FALSE(window.GetFiles().Open(broken));
    EXPECT_TRUE(messages.Take().join(QString()).contains("broken.prj could not be opened"_s));
    EXPECT_EQ(Tiles().GetCount(), 6) << "the wall is still there";
    document.NewProject();
    CProjectLock other(path);
    ASSERT_TRUE(other.Lock());
    EXPECT_FALSE(window.GetFiles().Open(path));
    EXPECT_TRUE(messages.texts.last().contains("test_designer"_s)) << qPrintable(messages.texts.last());
    messages.answer = QMessageBox::Yes;
    EXPECT_TRUE(window.GetFiles().Open(path));
    EXPECT_EQ(window.windowTitle().toStdString(), "wall.prj[*] (to look at)");
    EXPECT_FALSE(window.GetFiles().SaveTo(path)) << "it is somebody else's";
    EXPECT_TRUE(messages.texts.last().contains("was not saved"_s));
    GetProjectData()->AddGroupInfo(QStringLiteral("A"));
    messages.answer = QMessageBox::Cancel;
    EXPECT_FALSE(window.close()) << "the changes would be lost";
}
