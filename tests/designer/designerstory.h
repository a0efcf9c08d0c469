#pragma once

#include "designview.h"
#include "fileactions.h"
#include "mainwindow.h"
#include "support/messagerecorder.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QTabWidget>
#include <QTest>

#include <memory>

/// The window with an empty project, its boxes answered, and a folder for files.
struct DesignerStory : testing::Test
{
    DesignerStory();
    ~DesignerStory() override;

    QString MakeProject(const QString& name, const QSize& grid, int ports, int order); ///< its path
    void Click(const QPoint& wall, Qt::KeyboardModifiers keys = Qt::NoModifier);
    void Drag(const QList<QPoint>& wall, Qt::KeyboardModifiers keys = Qt::NoModifier,
              Qt::MouseButton button = Qt::LeftButton); ///< down at the first place, up at the last
    void Key(int key, Qt::KeyboardModifiers keys = Qt::NoModifier) ///< in the view
    {
        view.setFocus();
        QTest::keyClick(&view, Qt::Key(key), keys);
    }
    QColor ColorAt(const QPoint& wall); ///< as it is on the screen
    const CTileSet& Tiles(int port = 0) const
    {
        return GetProjectData()->GetSender(0)->GetPort(port)->GetTileSet();
    }
    template <class Editor> Editor* Find(const char* page, const char* name) ///< among the properties
    {
        auto* pages = window.findChild<QTabWidget*>();
        for (int i = 0; i < pages->count(); ++i) {
            if (pages->tabText(i) == QLatin1String(page))
                pages->setCurrentIndex(i);
        }
        for (Editor* editor : pages->currentWidget()->findChildren<Editor*>()) {
            if (editor->accessibleName() == QLatin1String(name))
                return editor;
        }
        throw std::runtime_error(name);
    }
    void Type(QWidget* editor, const char* text, bool enters = true);
    std::string Chain(int port = 0) const; ///< the cabinets' numbers in list order, 0: none
    void Picture(const char* name);        ///< into the folder of ORVAN_PICTURES, for eyes

    struct Library
    {
        Library() { LedNimbraData_Init(); }
        ~Library() { LedNimbraData_Release(); }
    } library;
    TestFolder folder;
    MessageRecorder messages;
    DocumentController document;
    MainWindow window{document};
    DesignView& view = window.GetView();
};
