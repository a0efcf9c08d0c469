#pragma once

#include "documentfile.h"

#include <OrvanData/orvandata.h>

#include <QList>
#include <QObject>

#include <functional>

class QWidget;

struct LayoutImport
{
    QString path;
    bool ofPort = false;         ///< else of a sender
    bool keepLockedPorts = true; ///< of a sender
    bool attributes = false;     ///< how the sender is named and shown, too
};

/// The open document as the windows see it, at first a new one. Each edit of a port's layout is one call
/// here, and one step of the history. What no step holds of senders, ports and the printed form is for
/// SenderEdits, and settings are written where they are chosen. Lives between LedNimbraData_Init and
/// LedNimbraData_Release.
class DocumentController : public QObject
{
    Q_OBJECT

public:
    explicit DocumentController(QObject* parent = nullptr);
    ~DocumentController() override;

    // what is open
    CProjectData& GetProject() const { return *GetProjectData(); }
    CSender* GetSender() const;                  ///< [ref] the current one, null without senders
    CPort* GetPort() const;                      ///< [ref] the current one of that sender
    static QString WhyClosed(const CPort& port); ///< why its cabinets stay as they are; empty: they need not
    static QList<CPort*> OpenPorts(CSender& sender); ///< [ref] in use and not closed
    bool IsAllowed(const QString& whyNot);           ///< with no reason against it, which the user is told
    const DocumentFile& GetFile() const { return m_file; }
    bool IsModified() const;   ///< as the library has it: a project may stay modified after a save
    bool IsSaveNeeded() const; ///< there is a change since the last save

    void TellAll(); ///< as if everything were new, for a window that was made since

    // files
    void NewProject(); ///< with one sender
    DocumentFile::Outcome Open(const QString& path, bool readOnly, CCustomProgressbar* progress,
                               QString* text);
    DocumentFile::Outcome Save(const QString& path, CCustomProgressbar* progress, QString* text);

    // layouts from files, into the current sender or its current port
    enum class ImportOutcome
    {
        Done,            ///< as one step, unless the history had to end
        HistoryWouldEnd, ///< no step can hold this; nothing was done
        Failed,          ///< nothing was done
    };
    bool MayImport(bool ofPort); ///< false, and told why, without a sender, or for a closed port
    /// `text` receives what to tell the user, unless all went well or MayImport told it.
    ImportOutcome ImportLayout(const LayoutImport& wanted, bool historyMayEnd, QString* text);

    // selection: of the current sender's cabinets, no edit
    enum class Choice
    {
        Replace,
        Add,
        Toggle,
    };
    void Select(const QList<CTile*>& tiles, Choice choice);
    void SelectGroups(); ///< all of the outermost groups that have a selected cabinet
    /// A group of whatever sender, whose port becomes the current one.
    void SelectGroup(const SPortPlace& place, const QUuid& id);
    void SelectAll();                   ///< of ports that are shown and not locked
    QList<CTile*> GetSelection() const; ///< [ref] by port, in list order
    QRect GetSelectionBound() const;
    /// The current port's nearest cabinet in the direction of an arrow key, from the last selected one. On a
    /// closed port none, and told why.
    CTile* FindNeighbour(int key);

    // edits of the selection: one step each. False: refused, and told why, or nothing to do
    bool MayEditSelection(); ///< there is one; false, and told why, when some of it is on a closed port
    /// So that it comes to lie within the largest canvas there can be, along the axes that it moves on.
    QPoint Limited(const QRect& bound, const QPoint& by) const;
    bool MoveSelection(const QPoint& by); ///< limited
    bool DeleteSelection();
    bool TurnSelection(double angle);   ///< degrees, clockwise, about its middle; rotation is on afterwards
    bool TurnSelectionTo(double angle); ///< as one when all are turned alike, else each by itself
    bool ResizeSelection(int width, int height); ///< each of them; 0: stays. Rows and columns stay together
    bool GroupSelection();
    bool UngroupSelection();            ///< the outermost groups that have a selected cabinet
    bool MoveSelectionToPort(int port); ///< of the sender; its chain does not take them up

    // copies, which outlive their cabinets and the document
    void CopySelection();
    bool CutSelection();
    bool Paste(); ///< onto the current port
    bool HasCopies() const { return m_copies.GetTileSet()->GetCount() > 0; }

    // adding a block of cabinets
    static CProductDirectorySet& GetProducts();             ///< scanned when nobody has done so yet
    QString WhyNotAddable(const SAddTileInfo& block) const; ///< to the current sender; empty: it can be added
    bool AddBlock(const SAddTileInfo& block);

    // chain of the current port: one step each
    bool MayEditPort(); ///< false, and told why, when it is hidden, locked or a backup
    bool NumberAll(EnAutoNumberType pattern);
    bool ClearNumbers();
    bool NumberByKey(int key); ///< the next cabinet in the direction of an arrow key
    /// Numbers cabinets one after the other without a step, until FinishNumbering makes one of all of them,
    /// or another edit begins. Passes over those that have a number or are not of this port; false when none
    /// is left.
    bool NumberNext(const QList<CTile*>& tiles);
    bool FinishNumbering();
    bool InsertIntoChain(CTile& tile);  ///< behind the selected cabinet; it is selected instead
    const CTile* GetEndOfChain() const; ///< null: nothing is numbered

    /// Whether turned cabinets are shown and found as turned: a setting of the user's.
    void SetRotationOn(bool on);

    // senders and ports. No step holds those that come and go; for what they are see SenderEdits
    void AddSender();                              ///< and makes it current
    bool DeleteSender(int index, QWidget* parent); ///< asks first
    void SetCurrentPort(int sender, int port);     ///< no change of the project
    void SetCurrentSender(int index);              ///< likewise, with the port that it had last
    void KeepCurrentPort();                        ///< among those in use
    static QString WhyShut(const CPort& port);     ///< hidden or locked; empty: it is neither

    // history
    bool Undo(int steps = 1);
    bool Redo(int steps = 1);
    QString GetUndoText(int n = 0) const; ///< of the step that is taken back n steps from now; empty: none
    QString GetRedoText(int n = 0) const;

signals:
    void Changed(const SDocumentChange& change); ///< in the document
    void FileChanged();                          ///< another path, or another right to it
    void SelectionChanged();
    void PortStatesChanged();  ///< shown, locked, current
    void PortEdited(int port); ///< of the current sender; the step comes later
    void SenderChanged();      ///< another one is current
    void RotationChanged(bool on);
    void Refused(const QString& why); ///< for the user

private:
    bool Record(CProjectUndoRedo::Type type);
    bool Refuse(const QString& why); ///< tells the user; always false
    void ShowTurned();               ///< when some cabinet is
    void SelectionDone();
    static QString WhyTooLarge();
    QString WhyNoRoom(const CPort& port, qint64 cabinets) const; ///< for that many more; empty: there is
    void MarkGroups();                                           ///< as selected, or not, by their cabinets
    bool FinishTurn();
    bool RemoveSelection(CProjectUndoRedo::Type type);
    CSender* Append(const QSize& canvas); ///< [ref]
    bool Go(const std::function<bool()>& step);

    DocumentFile m_file;
    CPortProject m_copies;   ///< good when their cabinets are gone, and for another document
    bool m_numbered = false; ///< some cabinet, since the last step
};
