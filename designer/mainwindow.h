#pragma once

#include "documentcontroller.h"
#include "scenemodel.h"
#include "senderedits.h"

#include <QMainWindow>

class DesignView;
class EditActions;
class FaultsDock;
class FileActions;
class PortActions;
class ProjectTree;
class SettingsActions;
class QLabel;
class QToolBar;

/// The window: menus, the view of the wall, and what is told about it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(DocumentController& document, QWidget* parent = nullptr); ///< [keep] the document
    ~MainWindow() override;

    DocumentController& GetDocument() { return m_document; }
    DesignView& GetView() { return *m_view; }
    FileActions& GetFiles() { return *m_files; }
    ProjectTree& GetTree() { return *m_tree; }
    FaultsDock& GetFaults() { return *m_faults; }
    SettingsActions& GetSettings() { return *m_settings; }
    void KeepLayout() const; ///< for the next window: place, size, docks

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MakeFileAndEditMenu();
    void MakeViewMenu();
    void MakeStatusBar();
    void MakeTools();
    void MakeProjectMenu();
    void MakeWallMenu();
    void RestoreLayout();
    void Connect();
    void Tell(const QString& text);
    void AskForBlock();
    void AskForAngle();
    void ShowTitle();
    void ShowCounts();
    void Take(const SDocumentChange& change);

    DocumentController& m_document;
    SenderEdits m_senderEdits{m_document};
    SceneModel m_scene;
    DesignView* m_view = nullptr;
    FileActions* m_files = nullptr;
    EditActions* m_edits = nullptr;
    PortActions* m_ports = nullptr;
    SettingsActions* m_settings = nullptr;
    QToolBar* m_bar = nullptr;
    ProjectTree* m_tree = nullptr;
    FaultsDock* m_faults = nullptr;
    QLabel* m_hint = nullptr;
    QLabel* m_state = nullptr;
    QLabel* m_counts = nullptr;
    QLabel* m_place = nullptr;
    QLabel* m_zoom = nullptr;
};
