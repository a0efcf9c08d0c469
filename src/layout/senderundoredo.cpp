#include "layout/senderundoredo.h"

#include "layout/layouttracker.h"
#include "layout/sender.h"

#include <algorithm>

struct CSenderRecordItem::Port : QSharedData
{
    QUuid senderId;
    int portIndex = 0;
    bool backup = false;
    LayoutSnapshot::Pointer layout;

    static PortPointer Take(const CPort& live, const PortPointer& previous, LayoutTracker* tracker);
};

/// `previous` itself when nothing changed; null for none.
CSenderRecordItem::PortPointer CSenderRecordItem::Port::Take(const CPort& live, const PortPointer& previous,
                                                             LayoutTracker* tracker)
{
    static const LayoutSnapshot::Pointer none;
    const LayoutSnapshot::Pointer& layout =
        tracker->Take(*live.GetPortProject(), previous ? previous->layout : none);
    if (previous && previous->layout == layout && previous->senderId == live.GetSenderId()
        && previous->portIndex == live.GetPortIndex() && previous->backup == live.IsBackupDest())
        return previous;
    auto* port = new Port;
    port->senderId = live.GetSenderId();
    port->portIndex = live.GetPortIndex();
    port->backup = live.IsBackupDest();
    port->layout = layout;
    return PortPointer(port);
}

CSenderRecordItem::CSenderRecordItem(const CSender& sender, VIEW_OPERATION_TYPE type,
                                     const CSenderRecordItem* previous, LayoutTracker* trackers)
    : m_senderId(sender.GetId()), m_type(type), m_recentPort(sender.GetRecentPortIndex())
{
    static const PortPointer none;
    for (int i = 0; i < kMaxPorts; ++i) {
        const auto slot = static_cast<size_t>(i);
        m_ports[slot] =
            Port::Take(*sender.GetPort(i), previous ? previous->m_ports[slot] : none, &trackers[slot]);
    }
}

CSenderRecordItem::~CSenderRecordItem() = default;

bool CSenderRecordItem::IsLayoutEqual(const CSenderRecordItem& other) const
{
    return std::equal(m_ports.begin(), m_ports.end(), other.m_ports.begin(),
                      [](const PortPointer& a, const PortPointer& b) {
                          return a->layout == b->layout || a->layout->IsEqual(*b->layout);
                      });
}

bool CSenderRecordItem::IsLayoutEqual(int port, const CPort& live) const
{
    return m_ports[static_cast<size_t>(port)]->layout->IsEqual(*live.GetPortProject());
}

bool CSenderRecordItem::RestorePort(int port, CPort* live, LayoutTracker* tracker) const
{
    const Port& record = *m_ports[static_cast<size_t>(port)];
    if (record.backup != live->IsBackupDest()) {
        live->GetPortProject()->ClearAllTiles();
        return record.layout->IsEqual(*live->GetPortProject());
    }
    live->SetSenderIdAndPortIndex(record.senderId, record.portIndex);
    tracker->Restore(live->GetPortProject(), record.layout);
    return true;
}

CSenderUndoRedo::CSenderUndoRedo() = default;

CSenderUndoRedo::~CSenderUndoRedo() = default;

void CSenderUndoRedo::Start(const CSender& sender)
{
    Clear();
    m_senderId = sender.GetId();
    m_trackers = std::make_unique<LayoutTracker[]>(kMaxPorts);
    m_records.push_back(std::make_unique<const CSenderRecordItem>(sender, CSenderRecordItem::OperationBase,
                                                                  nullptr, m_trackers.get()));
    m_current = 0;
    m_saved = 0;
}

void CSenderUndoRedo::Clear()
{
    m_records.clear();
    m_trackers.reset();
    m_senderId = QUuid();
    m_current = -1;
    m_saved = -1;
    m_apart = false;
}

bool CSenderUndoRedo::AddStep(const CSender& sender, Type type)
{
    const CSenderRecordItem* present = GetRecord(m_current);
    if (!present || sender.GetId() != m_senderId)
        return false;
    auto step = std::make_unique<const CSenderRecordItem>(sender, type, present, m_trackers.get());
    LeaveRecord();
    if (step->IsLayoutEqual(*present))
        return false;

    m_records.resize(static_cast<size_t>(m_current) + 1);
    if (m_saved > m_current)
        m_saved = -1; // it was among the steps that could have been redone
    m_records.push_back(std::move(step));
    if (GetRecordCount() <= kStepLimit) {
        ++m_current;
        return true;
    }
    m_records.erase(m_records.begin() + 1); // the base stays
    if (m_saved == 1)
        m_saved = -1;
    else if (m_saved > 1)
        --m_saved;
    return true;
}

bool CSenderUndoRedo::Move(int steps)
{
    if (m_current < 0 || steps < -m_current || steps >= GetRecordCount() - m_current)
        return false;
    LeaveRecord();
    m_current += steps;
    return true;
}

/// What was saved apart from the record is not what coming back to the record brings.
void CSenderUndoRedo::LeaveRecord()
{
    if (m_apart && m_saved == m_current)
        m_saved = -1;
    m_apart = false;
}

const CSenderRecordItem* CSenderUndoRedo::GetRecord(int position) const
{
    return position < 0 || position >= GetRecordCount() ? nullptr
                                                        : m_records[static_cast<size_t>(position)].get();
}

bool CSenderUndoRedo::RestorePort(int port, CPort* live)
{
    const CSenderRecordItem* record = GetRecord(m_current);
    return record && record->RestorePort(port, live, &m_trackers[static_cast<size_t>(port)]);
}
