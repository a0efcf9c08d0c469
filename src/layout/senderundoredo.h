#pragma once

#include "common/export.h"

#include <QUuid>
#include <QVector>

#include <memory>

class CSender;

/// A step: what one sender's ports held after an edit. Steps of one history share whatever an edit left
/// alone, so a step costs what its edit changed, and where cabinets came or went a pointer for each behind
/// that place. Never changes once made.
class ORVANDATA_EXPORT CSenderRecordItem
{
public:
    /// The edit that led to a step. Hosts show it in their list of steps.
    enum VIEW_OPERATION_TYPE : int
    {
        OperationAddTiles = 0,
        OperationDeleteTiles = 1,
        OperationMoveTiles = 2,
        OperationResizeTiles = 3,
        OperationPasteTiles = 4,
        OperationCutTiles = 5,
        OperationGroup = 6,
        OperationUngroup = 7,
        OperationRotate = 8,
        OperationRotateCentre = 9,
        OperationSelect = 10, ///< never recorded
        OperationView = 11,   ///< zooming and scrolling; never recorded
        OperationConnect = 12,
        OperationAutoConnect = 13,
        OperationDisconnect = 14,
        OperationChangeType = 15,
        OperationChangeOrder = 16, ///< which cabinet lies on top
        OperationAlign = 17,
        OperationMoveToPort = 18,
        OperationMarkReceiver = 19,
        OperationImportLayout = 20,
        OperationClear = 21,
        OperationBase = 22, ///< the state that a history starts from
    };

    struct Ports; ///< inside the library

    CSenderRecordItem(const CSender& sender, VIEW_OPERATION_TYPE type, std::unique_ptr<const Ports> ports);
    CSenderRecordItem(const CSenderRecordItem&) = delete;
    CSenderRecordItem& operator=(const CSenderRecordItem&) = delete;
    virtual ~CSenderRecordItem();

    bool IsValid() const { return m_valid; } ///< true from its making on
    VIEW_OPERATION_TYPE GetType() const { return m_type; }
    QUuid GetSenderId() const { return m_senderId; }
    int GetRecentPortIndex() const { return m_recentPort; }

    const Ports& GetPorts() const { return *m_ports; } ///< inside the library

private:
    QUuid m_senderId;
    VIEW_OPERATION_TYPE m_type;
    int m_recentPort;
    bool m_valid = true;
    std::unique_ptr<const Ports> m_ports;
};

/// The history of one sender: its base step and those after it, at most kStepLimit in all. Beyond that the
/// oldest goes; the base stays. Owns them.
class ORVANDATA_EXPORT CSenderUndoRedo
{
public:
    using Type = CSenderRecordItem::VIEW_OPERATION_TYPE;
    static constexpr int kStepLimit = 200;

    CSenderUndoRedo();
    CSenderUndoRedo(const CSenderUndoRedo&) = delete;
    CSenderUndoRedo& operator=(const CSenderUndoRedo&) = delete;
    virtual ~CSenderUndoRedo();

    // life
    void Start(CSender& sender);                     ///< drops what was there; the base counts as saved
    void Clear();                                    ///< frees the slot
    QUuid GetSenderId() const { return m_senderId; } ///< null: the slot is free

    // steps
    bool AddStep(CSender& sender, Type type); ///< false when the sender is another or nothing changed
    bool AddStep(CSender& sender, Type type, QVector<int>* changed); ///< appends the ports that changed
    /// Whether a step can hold what leads from one to the other: both have the same number of ports, and the
    /// same ports are backups of the same ones.
    static bool HoldsChange(const CSender& before, const CSender& after);
    bool Move(int steps);                            ///< negative: back; false outside the history
    int GetCurrentStep() const { return m_current; } ///< -1: no history
    int GetStepCount() const;
    const CSenderRecordItem* GetStep(int position) const; ///< [ref] 0 is the base; null out of range
    /// Puts the current step back on the visible ports; `shownPort`, when visible, becomes the recent one. A
    /// port that only then or only now is a backup is cleared. Cabinets keep their address, and view state
    /// where nothing changed. False when the sender is not as the step says afterwards.
    bool Restore(CSender* sender, int shownPort);
    bool Restore(CSender* sender, int shownPort, QVector<int>* changed); ///< the same, unless that is null
    bool Restore(CSender* sender, int shownPort, QVector<int>* changed, bool hiddenPortsToo); ///< likewise

    // saved state
    bool IsModified() const { return m_current != m_saved; }
    void SetSaved() { m_saved = m_current; }
    void SetNeverSaved() { m_saved = -1; } ///< no step holds what was saved

private:
    struct State;

    void LeaveStep();

    QUuid m_senderId;
    int m_current = -1;
    int m_saved = -1;
    bool m_apart = false;           ///< the sender is not as the current step says
    std::unique_ptr<State> m_state; ///< while there is a history
};
