#include "designerstory.h"

#include <orvantools/newproject.h>

DesignerStory::DesignerStory()
{
    window.resize(1280, 800);
    window.show();
    window.activateWindow();
    QTest::qWait(1);
}

DesignerStory::~DesignerStory()
{
    messages.answer = QMessageBox::Discard;
    window.close();
}

QString DesignerStory::MakeProject(const QString& name, const QSize& grid, int ports, int order)
{
    CProjectData project;
    OrvanTools::NewProject wanted;
    wanted.grid = grid;
    wanted.ports = ports;
    wanted.order = order;
    const QString path = folder.Path(name);
    EXPECT_TRUE(OrvanTools::BuildProject(project, wanted));
    EXPECT_TRUE(project.SaveProjectToFile(path, nullptr)) << qPrintable(project.GetLastFileError());
    return path;
}

void DesignerStory::Click(const QPoint& wall, Qt::KeyboardModifiers keys)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, view.GetMap().ToView(wall));
}

/// QTest tells no button in the moves that it makes, and waits for the time of a double click.
void DesignerStory::Drag(const QList<QPoint>& wall, Qt::KeyboardModifiers keys, Qt::MouseButton button)
{
    const auto send = [&](QEvent::Type type, const QPoint& place, Qt::MouseButtons held) {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, place, isMove ? Qt::NoButton : button, held, keys);
        QApplication::sendEvent(view.viewport(), &event);
    };
    QList<QPoint> places;
    for (const QPoint& place : wall)
        places.append(view.GetMap().ToView(place));
    send(QEvent::MouseButtonPress, places.first(), button);
    for (const QPoint& place : places)
        send(QEvent::MouseMove, place, button);
    send(QEvent::MouseButtonRelease, places.last(), Qt::NoButton);
}

QColor DesignerStory::ColorAt(const QPoint& wall)
{
    return view.viewport()->grab().toImage().pixelColor(view.GetMap().ToView(wall));
}

void DesignerStory::Type(QWidget* editor, const char* text, bool enters)
{
    QTRY_VERIFY(editor->isVisible());
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QLatin1String(text));
    if (enters)
        QTest::keyClick(editor, Qt::Key_Return);
}

std::string DesignerStory::Chain(int port) const
{
    QStringList numbers;
    for (const CTile* tile : Tiles(port))
        numbers.append(QString::number(tile->GetConnectionIndex() + 1));
    return numbers.join(QLatin1Char(' ')).toStdString();
}

void DesignerStory::Picture(const char* name)
{
    const QString pictures = qEnvironmentVariable("ORVAN_PICTURES");
    if (pictures.isEmpty())
        return;
    QTest::qWait(30); // what is laid out later
    window.grab().save(pictures + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png"));
}
