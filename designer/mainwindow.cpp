#include "mainwindow.h"

#include "blockdialog.h"
#include "cabinetspage.h"
#include "chainactions.h"
#include "designview.h"
#include "editactions.h"
#include "exchangeactions.h"
#include "faultsdock.h"
#include "fileactions.h"
#include "makeaction.h"
#include "numbertool.h"
#include "pageform.h"
#include "pantool.h"
#include "portactions.h"
#include "projecttree.h"
#include "propertypages.h"
#include "selecttool.h"
#include "settingsactions.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>

namespace {

constexpr int kMessageTime = 6000; ///< milliseconds
const QString kGeometryKey = QStringLiteral("Designer/Geometry");
const QString kDocksKey = QStringLiteral("Designer/Docks");

/// The one file that is dragged, else empty.
QString DraggedFile(const QMimeData* data)
{
    return data->urls().size() == 1 ? data->urls().first().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(DocumentController& document, QWidget* parent)
    : QMainWindow(parent), m_document(document), m_view(new DesignView(m_scene, this)),
      m_files(new FileActions(m_document, *this)), m_ports(new PortActions(m_document, m_senderEdits, *this)),
      m_settings(new SettingsActions(this)), m_bar(addToolBar(tr("Tools"))),
      m_tree(new ProjectTree(m_document, m_senderEdits, this))
{
    setCentralWidget(m_view);
    const auto add = [this](const QString& name, const QString& title, QWidget* widget,
                            Qt::DockWidgetArea area) {
        auto* dock = new QDockWidget(title, this);
        dock->setObjectName(name);
        dock->setWidget(widget);
        addDockWidget(area, dock);
        return dock;
    };
    auto* project = add(QStringLiteral("project"), tr("Project"), m_tree, Qt::LeftDockWidgetArea);
    auto* pages = new QTabWidget(this);
    pages->setUsesScrollButtons(false); // all of them are seen to be there
    pages->addTab(new CabinetsPage(m_document, this), tr("Cabinets"));
    new PropertyPages(m_document, m_senderEdits, *m_ports, *pages);
    auto* properties = add(QStringLiteral("properties"), tr("Properties"), pages, Qt::RightDockWidgetArea);
    m_faults = new FaultsDock(m_document, this);
    addDockWidget(Qt::BottomDockWidgetArea, m_faults);
    setAcceptDrops(true);
    resize(1280, 800);
    resizeDocks({project, properties}, {280, 240}, Qt::Horizontal);
    resizeDocks({m_faults}, {110}, Qt::Vertical);
    m_bar->setObjectName(QStringLiteral("tools"));
    m_bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    Connect();
    MakeStatusBar();
    MakeFileAndEditMenu();
    MakeViewMenu();
    MakeTools();
    MakeProjectMenu();
    MakeWallMenu();
    m_settings->AddTo(*menuBar()->addMenu(tr("&Settings")));
    m_view->SetHint(
        tr("There are no cabinets yet.\n\nPress Insert, or choose Wall, Add block, to place a block of "
           "them. Or drop a project here to open it."));
    RestoreLayout();
    m_document.TellAll();
    m_view->setFocus();
}

/// What loses the focus while it goes still tells something, and that needs the members.
MainWindow::~MainWindow()
{
    disconnect(&m_document, nullptr, this, nullptr);
    delete m_view;
    qDeleteAll(findChildren<QDockWidget*>());
}

void MainWindow::Connect()
{
    connect(&m_document, &DocumentController::Changed, this, &MainWindow::Take);
    connect(&m_document, &DocumentController::FileChanged, this, &MainWindow::ShowTitle);
    connect(&m_document, &DocumentController::SelectionChanged, &m_scene, &SceneModel::RenewSelection);
    connect(&m_document, &DocumentController::PortStatesChanged, &m_scene, &SceneModel::RenewPortStates);
    connect(&m_document, &DocumentController::PortStatesChanged, m_view, &DesignView::ShowTool);
    connect(&m_document, &DocumentController::PortEdited, &m_scene, &SceneModel::RenewPort);
    connect(&m_document, &DocumentController::SenderChanged, &m_scene, &SceneModel::Renew);
    connect(&m_document, &DocumentController::SenderChanged, m_view, &DesignView::Fit);
    connect(&m_document, &DocumentController::Refused, this, &MainWindow::Tell);
    connect(m_faults, &FaultsDock::CabinetChosen, m_view, &DesignView::Show);
    connect(&m_scene, &SceneModel::Renewed, this, &MainWindow::ShowCounts);
    connect(m_files, &FileActions::Told, this, &MainWindow::Tell);
}

void MainWindow::Tell(const QString& text)
{
    statusBar()->showMessage(text, kMessageTime);
}

void MainWindow::Take(const SDocumentChange& change)
{
    m_scene.Take(change);
    m_tree->Take(change);
    if (change.documentReplaced)
        m_view->Fit();
    m_view->ShowTool();
    ShowTitle();
}

void MainWindow::MakeFileAndEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    m_files->AddTo(*menu);
    menu->addSeparator();
    auto* exchange = new ExchangeActions(m_document, *this);
    connect(exchange, &ExchangeActions::Told, this, &MainWindow::Tell);
    exchange->AddTo(*menu);
    menu->addSeparator();
    AddAction(*menu, this, tr("&Quit"), tr("Close the window; what is not saved is asked for first"),
              QKeySequence::Quit, [this] { close(); });
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    m_edits = new EditActions(m_document, *edit, *m_bar);
    m_view->addActions(edit->actions()); // some have their key in the view alone
    connect(m_edits, &EditActions::Placed, m_view, &DesignView::Show);
    m_bar->addSeparator();
}

/// Each tool is made anew when it is chosen.
void MainWindow::MakeTools()
{
    QMenu* menu = menuBar()->addMenu(tr("&Tools"));
    auto* group = new QActionGroup(this);
    const auto add = [&](const QString& text, const QString& tip, const QKeySequence& key, auto make) {
        const auto choose = [this, make] { m_view->SetTool(make()); };
        m_bar->addAction(group->addAction(AddSwitch(*menu, this, text, tip, key, false, choose)));
        return group->actions().last();
    };
    add(tr("&Select"), tr("Select and move cabinets"), Qt::Key_S, [this] {
        return std::make_unique<SelectTool>(*m_view, m_document);
    })->trigger();
    add(tr("&Number"), tr("Number the current port's cabinets one by one"), Qt::Key_N,
        [this] { return std::make_unique<NumberTool>(*m_view, m_document); });
    add(tr("&Pan"), tr("Move the view; also with the middle button, or with the space bar held"), Qt::Key_H,
        [this] { return std::make_unique<PanTool>(*m_view); });
}

void MainWindow::MakeProjectMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Project"));
    const auto first = [this](auto act) { // what is typed is of the sender that is left
        return [act] {
            PageForm::FinishTyping();
            act();
        };
    };
    AddAction(*menu, this, tr("&Add sender"), tr("Add a sending unit or processor, with ports of its own"),
              Keys("Ctrl+T"), first([this] { m_document.AddSender(); }));
    AddAction(*menu, this, tr("&Rename sender"), tr("Give the sender in the tree a name"), Qt::Key_F2,
              first([this] { m_tree->RenameCurrent(); }));
    QAction* remove =
        AddAction(*menu, this, tr("&Delete sender…"),
                  tr("Delete the sender in the tree with all its cabinets; the last one of a project stays"),
                  {}, first([this] { m_document.DeleteSender(m_tree->GetSelectedSender(), this); }));
    connect(&m_document, &DocumentController::Changed, remove,
            [this, remove] { remove->setEnabled(m_document.GetProject().GetSenderCount() > 1); });
    menu->addSeparator();
    menu->addActions(m_ports->GetActions());
    m_tree->addActions(menu->actions());
}

void MainWindow::MakeWallMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Wall"));
    m_bar->addSeparator();
    m_bar->addAction(AddAction(*menu, this, tr("Add &block…"),
                               tr("Place a block of equal cabinets on a port"), Qt::Key_Insert,
                               [this] { AskForBlock(); }));
    m_edits->Enable(*AddAction(*menu, this, tr("&Turn…"), tr("Turn the selected cabinets about their middle"),
                               Keys("Ctrl+R"), [this] { AskForAngle(); }),
                    EditActions::Selection);
    QAction* turned =
        AddSwitch(*menu, this, tr("Show turned cabinets as &turned"),
                  tr("Off: they are shown and found upright, each about its middle"), {},
                  GetConfigData()->IsEnableRotate(), [this](bool on) { m_document.SetRotationOn(on); });
    connect(&m_document, &DocumentController::RotationChanged, turned, &QAction::setChecked);
    connect(&m_document, &DocumentController::RotationChanged, &m_scene, &SceneModel::Renew);
    menu->addSeparator();
    QToolBar* bar = addToolBar(tr("Chain"));
    bar->setObjectName(QStringLiteral("chain"));
    new ChainActions(m_document, *menu, *bar);
}

void MainWindow::KeepLayout() const
{
    GetConfigData()->SetUIValue(kGeometryKey, saveGeometry());
    GetConfigData()->SetUIValue(kDocksKey, saveState());
}

/// What cannot be understood leaves things as they are.
void MainWindow::RestoreLayout()
{
    restoreGeometry(GetConfigData()->GetUIValue(kGeometryKey).toByteArray());
    restoreState(GetConfigData()->GetUIValue(kDocksKey).toByteArray());
}

void MainWindow::AskForAngle()
{
    if (!m_document.MayEditSelection())
        return;
    bool isChosen = false;
    const double angle =
        QInputDialog::getDouble(this, tr("Turn"), tr("Degrees, clockwise:"), 90, -360, 360, 2, &isChosen);
    if (isChosen)
        m_document.TurnSelection(angle);
}

void MainWindow::AskForBlock()
{
    if (!m_document.GetSender())
        return Tell(tr("There is no sender yet. Add one first."));
    auto* dialog = new BlockDialog(m_document, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const auto preview = [this](const SAddTileInfo& block) {
        m_view->SetPreview(block.GetBound(), QSize(block.width, block.height));
    };
    preview(dialog->GetBlock());
    connect(dialog, &BlockDialog::BlockChanged, this, preview);
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) {
        m_view->SetPreview({}, {});
        const SAddTileInfo block = dialog->GetBlock();
        if (result != QDialog::Accepted || !m_document.AddBlock(block))
            return;
        m_view->Show(block.GetBound());
        GetConfigData()->SetCustomerTileSize(QSize(block.width, block.height));
    });
    dialog->open();
}

void MainWindow::MakeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    AddAction(*menu, this, tr("Zoom &in"), tr("Show the wall larger, about the middle of the view"),
              QKeySequence::ZoomIn, [this] { m_view->ZoomIn(); })
        ->setShortcuts({QKeySequence(QKeySequence::ZoomIn), Keys("Ctrl+=")});
    AddAction(*menu, this, tr("Zoom &out"), tr("Show the wall smaller, about the middle of the view"),
              QKeySequence::ZoomOut, [this] { m_view->ZoomOut(); });
    AddAction(*menu, this, tr("&Fit all"), tr("Show the canvas, and what lies beyond it, as a whole"),
              Keys("Ctrl+0"), [this] { m_view->Fit(); });
    AddAction(*menu, this, tr("&Actual size"), tr("Show each pixel of the wall as one of the screen"),
              Keys("Ctrl+1"), [this] { m_view->ActualSize(); });
    menu->addSeparator();
    AddSwitch(*menu, this, tr("&Grid"), tr("Show lines on the canvas to measure by eye"), Qt::Key_NumberSign,
              GetConfigData()->IsShowGrid(), [this](bool on) { m_view->ShowGrid(on); });
    menu->addSeparator();
    for (const QDockWidget* dock : findChildren<QDockWidget*>()) {
        dock->toggleViewAction()->setStatusTip(tr("Show this part of the window, or hide it"));
        menu->addAction(dock->toggleViewAction());
    }
}

void MainWindow::MakeStatusBar()
{
    m_hint = new QLabel(this);
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // the counts matter more
    statusBar()->addWidget(m_hint, 1);
    for (QLabel** label : {&m_state, &m_counts, &m_place, &m_zoom}) {
        *label = new QLabel(this);
        statusBar()->addPermanentWidget(*label);
    }
    m_place->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000, 00000")));
    m_zoom->setToolTip(tr("View pixels for 100 pixels of the wall"));
    connect(m_view, &DesignView::ToolHint, this, [this](const QString& text) {
        m_hint->setText(text);
        m_hint->setToolTip(text);
    });
    connect(m_view, &DesignView::Zoomed, this, [this](double scaling) {
        m_zoom->setText(QStringLiteral("%1 %").arg(scaling * 100, 0, 'g', 3));
    });
    connect(m_view, &DesignView::PointedAt, this, [this](const QPoint& wall) {
        m_place->setText(wall.x() < 0 || wall.y() < 0 ? QString()
                                                      : QStringLiteral("%1, %2").arg(wall.x()).arg(wall.y()));
    });
}

void MainWindow::ShowTitle()
{
    const DocumentFile& file = m_document.GetFile();
    const QString name = file.GetPath().isEmpty() ? tr("New project") : QFileInfo(file.GetPath()).fileName();
    setWindowTitle((file.IsReadOnly() ? tr("%1[*] (to look at)") : QStringLiteral("%1[*]")).arg(name));
    setWindowFilePath(file.GetPath());
    setWindowModified(m_document.IsModified());
    const bool stays = m_document.IsModified() && !m_document.IsSaveNeeded();
    m_state->setText(stays ? tr("Saved, stays marked as modified") : QString());
    m_state->setToolTip(tr("Senders, names and the like changed, which no undo takes back. A project that "
                           "changed so counts as modified until it is opened again, though all is saved."));
}

void MainWindow::ShowCounts()
{
    size_t cabinets = 0;
    size_t selected = 0;
    size_t numbered = 0;
    for (const ScenePort& port : m_scene.GetPorts()) {
        cabinets += port.cabinets.size();
        numbered += port.chain.size();
        for (const SceneCabinet& cabinet : port.cabinets)
            selected += cabinet.selected ? 1 : 0;
    }
    m_counts->setText(tr("%1 cabinets, %2 numbered, %3 selected").arg(cabinets).arg(numbered).arg(selected));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_files->MayLeave());
    if (event->isAccepted())
        KeepLayout();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!DraggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

/// The program that the file comes from waits until this returns, so the file is opened afterwards.
void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = DraggedFile(event->mimeData());
    event->acceptProposedAction();
    QTimer::singleShot(0, this, [this, path] { m_files->Open(path); });
}
