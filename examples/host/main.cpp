// A small host of the library: one edit from product file to saved project and back. Built against an
// installed OrvanData; the product and the work files go into the user's documents folder, as a host's do.
#include <OrvanData/orvandata.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTranslator>

#include <cstdio>

namespace {

/// Qt ends the program where no display is. This one shows nothing and goes on without.
void ChoosePlatform()
{
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Tells which step failed, with the reason where the library has one.
bool Done(bool well, const char* step)
{
    const QString reason = GetProjectData()->GetLastFileError();
    if (!well)
        std::fprintf(stderr, "orvandata-host: %s failed%s%s\n", step, reason.isEmpty() ? "" : ": ",
                     qPrintable(reason));
    return well;
}

/// Stands for the receiver parameter file that a user would copy into the product folder.
CProduct* AddProduct()
{
    const QString name = QStringLiteral("Example 128.rcvbp");
    QFile file(CProductDirectorySet::GetRootDir() + name);
    if (!file.open(QIODevice::WriteOnly) || file.write("example cabinet, 128 x 128 pixels") < 0)
        return nullptr;
    file.close();

    CProductDirectorySet* products = GetRuntimeData()->GetProductDirectorySet();
    products->LoadProductInfo();
    return products->FindProductFromFileName(name);
}

/// A wall of 4 x 3 cabinets on the first port, numbered in rows from the top left.
bool PlaceWall(CSender* sender, const CProduct& product)
{
    SAddTileInfo block;
    block.senderId = sender->GetId();
    block.portIndex = 0;
    block.type = product.GetMd5();
    block.columns = 4;
    block.rows = 3;
    block.width = 128;
    block.height = 128;

    CProjectUndoRedo* history = GetRuntimeData()->GetProjectUndoRedo();
    CPortProject* layout = sender->GetPort(0)->GetPortProject();
    if (!layout->AddTile(block) || !history->AddOneStep(CSenderRecordItem::OperationAddTiles))
        return Done(false, "placing the wall");
    return Done(layout->GetTileSet()->AutoConnection(AutoNumberRowsTopLeft, 0)
                    && history->AddOneStep(CSenderRecordItem::OperationAutoConnect),
                "numbering the wall");
}

/// Takes the numbering back and brings it again.
bool UndoAndRedo(CSender* sender)
{
    CProjectUndoRedo* history = GetRuntimeData()->GetProjectUndoRedo();
    CTileSet* tiles = sender->GetPort(0)->GetPortProject()->GetTileSet();
    if (!history->Undo(1, nullptr, nullptr) || tiles->HasNumberedTiles())
        return Done(false, "undo");
    return Done(history->Redo(1, nullptr, nullptr) && tiles->GetRcvCount() == tiles->GetCount(), "redo");
}

bool SaveAndLoad(const QString& path)
{
    GetProjectData()->CancelAllTileSelect(InterfaceDesign); // which cabinets are selected is in no file
    if (!GetProjectData()->SaveProjectToFile(path, nullptr)
        || !GetProjectData()->GetLastFileError().isEmpty())
        return Done(false, "saving");
    GetRuntimeData()->GetProjectUndoRedo()->SetAsSaveStep();

    const CProjectData saved = *GetProjectData();
    QString neededVersion;
    if (!GetProjectData()->LoadProjectFromFile(QFile::encodeName(path).constData(), neededVersion, nullptr))
        return Done(false, "loading");
    const CPort* before = saved.GetSender(0)->GetPort(0);
    const CPort* after = GetProjectData()->GetSender(0)->GetPort(0);
    return Done(*before->GetPortProject()->GetTileSet() == *after->GetPortProject()->GetTileSet(),
                "comparing what was loaded");
}

bool Walk(const QString& path)
{
    const CProduct* product = AddProduct();
    if (!Done(product, "putting a product into the product folder"))
        return false;
    CSender* sender = GetProjectData()->NewSender();
    if (!Done(sender, "adding a sender"))
        return false;
    sender->SetCanvasSize(QSize(1920, 1080));
    return PlaceWall(sender, *product) && UndoAndRedo(sender) && SaveAndLoad(path);
}

} // namespace

int main(int argc, char** argv)
{
    ChoosePlatform();
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: orvandata-host FOLDER\n");
        return 2;
    }
    const QString path = QDir(QFile::decodeName(argv[1])).filePath(QStringLiteral("wall.prj"));

    LedNimbraData_Init();
    QTranslator translator; // in the language of the settings, which is the system's at first
    if (translator.load(GetConfigData()->GetTranslationPath()))
        QCoreApplication::installTranslator(&translator);
    const bool done = Walk(path);
    if (done)
        std::printf("saved and loaded again: %s\n", qPrintable(path));
    LedNimbraData_Release();
    return done ? 0 : 1;
}
