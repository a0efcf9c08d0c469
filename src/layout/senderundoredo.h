#pragma once

#include "common/canvaslimits.h"
#include "common/export.h"

#include <QExplicitlySharedDataPointer>
#include <QUuid>

#include <array>
#include <memory>
#include <vector>

class CPort;
class CSender;
class LayoutTracker;

/// What one sender's ports held after an edit. Records of one history share whatever an edit left alone, so a
/// record costs what its edit changed. Never changes once made.
class ORVANDATA_EXPORT CSenderRecordItem
{
public:
    /// The edit that led to a record. Hosts show it in their list of steps.
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

    /// `previous` [ref]: the record that the edit started from, null for none. `trackers` [ref]: of all
    /// ports.
    CSenderRecordItem(const CSender& sender, VIEW_OPERATION_TYPE type, const CSenderRecordItem* previous,
                      LayoutTracker* trackers);
    CSenderRecordItem(const CSenderRecordItem&) = delete;
    CSenderRecordItem& operator=(const CSenderRecordItem&) = delete;
    virtual ~CSenderRecordItem();

    bool IsValid() const { return m_valid; } ///< true from its making on
    VIEW_OPERATION_TYPE GetType() const { return m_type; }
    QUuid GetSenderId() const { return m_senderId; }
    int GetRecentPortIndex() const { return m_recentPort; }

    bool IsLayoutEqual(const CSenderRecordItem& other) const; ///< all 160 ports, groups in depth
    bool IsLayoutEqual(int port, const CPort& live) const;
    /// Puts the recorded layout back, or clears the port when only one of the two is a backup. False when the
    /// port is not as recorded then. Cabinets keep their address, and view state where nothing changed.
    bool RestorePort(int port, CPort* live, LayoutTracker* tracker) const;

private:
    struct Port;
    using PortPointer = QExplicitlySharedDataPointer<const Port>;

    QUuid m_senderId;
    VIEW_OPERATION_TYPE m_type;
    int m_recentPort;
    bool m_valid = true;
    std::array<PortPointer, kMaxPorts> m_ports;
};

/// The history of one sender: its base record and the steps after it, at most kStepLimit records. Beyond that
/// the oldest step goes; the base stays. Owns them.
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
    void Start(const CSender& sender); ///< drops what was there; the base record counts as saved
    void Clear();                      ///< frees the slot
    QUuid GetSenderId() const { return m_senderId; } ///< null: the slot is free

    // steps
    bool AddStep(const CSender& sender, Type type);  ///< false when the sender is another or nothing changed
    bool Move(int steps);                            ///< negative: back; false outside the history
    int GetCurrentStep() const { return m_current; } ///< -1: no history
    int GetRecordCount() const { return static_cast<int>(m_records.size()); }
    const CSenderRecordItem* GetRecord(int position) const; ///< [ref] 0 is the base; null out of range
    bool RestorePort(int port, CPort* live);                ///< from the current record

    // saved state
    bool IsModified() const { return m_current != m_saved; }
    void SetSaved() { m_saved = m_current; }
    void SetNeverSaved() { m_saved = -1; } ///< no record holds what was saved
    /// The sender is not as the current record says, because a port was left out when it was put back.
    void SetApart() { m_apart = true; }

private:
    void LeaveRecord();

    QUuid m_senderId;
    int m_current = -1;
    int m_saved = -1;
    bool m_apart = false;
    std::vector<std::unique_ptr<const CSenderRecordItem>> m_records;
    std::unique_ptr<LayoutTracker[]> m_trackers; ///< one a port, while there is a history
};
