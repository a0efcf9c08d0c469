#include "layout/senderundoredo.h"

#include "layout/layouttracker.h"
#include "layout/sender.h"

#include <algorithm>
#include <array>
#include <vector>

struct CSenderRecordItem::Ports : std::array<LayoutSnapshot::Pointer, kMaxPorts>
{};

struct CSenderUndoRedo::State
{
    std::unique_ptr<const CSenderRecordItem> TakeStep(CSender& sender, Type type);

    std::vector<std::unique_ptr<const CSenderRecordItem>> steps;
    std::array<LayoutTracker, kMaxPorts> trackers;
};

namespace {

/// False when the port is not as wanted afterwards.
bool RestorePort(CPort& port, LayoutTracker& tracker, const LayoutSnapshot::Pointer& wanted, bool mayChange)
{
    if (mayChange && port.IsBackupDest() == wanted->IsBackup()) {
        tracker.Restore(&port, wanted);
        return true;
    }
    if (mayChange)
        port.GetPortProject()->ClearAllTiles();
    return tracker.Take(port)->IsEqual(*wanted);
}

} // namespace

std::unique_ptr<const CSenderRecordItem> CSenderUndoRedo::State::TakeStep(CSender& sender, Type type)
{
    auto ports = std::make_unique<CSenderRecordItem::Ports>();
    for (int i = 0; i < kMaxPorts; ++i) {
        const auto at = static_cast<size_t>(i);
        (*ports)[at] = trackers[at].Take(*sender.GetPort(i));
    }
    return std::make_unique<const CSenderRecordItem>(sender, type, std::move(ports));
}

CSenderRecordItem::CSenderRecordItem(const CSender& sender, VIEW_OPERATION_TYPE type,
                                     std::unique_ptr<const Ports> ports)
    : m_senderId(sender.GetId()), m_type(type), m_recentPort(sender.GetRecentPortIndex()),
      m_ports(std::move(ports))
{}

CSenderRecordItem::~CSenderRecordItem() = default;

CSenderUndoRedo::CSenderUndoRedo() = default;

CSenderUndoRedo::~CSenderUndoRedo() = default;

void CSenderUndoRedo::Start(CSender& sender)
{
    Clear();
    m_senderId = sender.GetId();
    m_state = std::make_unique<State>();
    m_state->steps.push_back(m_state->TakeStep(sender, CSenderRecordItem::OperationBase));
    m_current = 0;
    m_saved = 0;
}

void CSenderUndoRedo::Clear()
{
    m_state.reset();
    m_senderId = QUuid();
    m_current = -1;
    m_saved = -1;
    m_apart = false;
}

bool CSenderUndoRedo::AddStep(CSender& sender, Type type)
{
    QVector<int> changed;
    return AddStep(sender, type, &changed);
}

bool CSenderUndoRedo::AddStep(CSender& sender, Type type, QVector<int>* changed)
{
    if (m_current < 0 || sender.GetId() != m_senderId)
        return false;
    auto& steps = m_state->steps;
    auto step = m_state->TakeStep(sender, type);
    LeaveStep();
    const CSenderRecordItem::Ports& present = GetStep(m_current)->GetPorts();
    const auto isEqual = [](const auto& a, const auto& b) { return a == b || a->IsEqual(*b); };
    if (std::equal(present.begin(), present.end(), step->GetPorts().begin(), isEqual))
        return false;
    for (int i = 0; i < kMaxPorts; ++i) // a port that is as it was keeps its snapshot
        if (present[static_cast<size_t>(i)] != step->GetPorts()[static_cast<size_t>(i)])
            changed->append(i);

    steps.resize(static_cast<size_t>(m_current) + 1);
    if (m_saved > m_current)
        m_saved = -1; // it was among the steps that could have been redone
    steps.push_back(std::move(step));
    if (GetStepCount() <= kStepLimit) {
        ++m_current;
        return true;
    }
    steps.erase(steps.begin() + 1); // the base stays
    if (m_saved == 1)
        m_saved = -1;
    else if (m_saved > 1)
        --m_saved;
    return true;
}

bool CSenderUndoRedo::HoldsChange(const CSender& before, const CSender& after)
{
    const auto isSame = [](const CPort& one, const CPort& other) {
        return one.IsBackupDest() == other.IsBackupDest()
               && one.GetBackupSrcSenderId() == other.GetBackupSrcSenderId()
               && one.GetBackupSrcPortIndex() == other.GetBackupSrcPortIndex()
               && one.GetBackupSrcIP() == other.GetBackupSrcIP();
    };
    return before.GetPortCount() == after.GetPortCount()
           && std::equal(before.GetPorts().begin(), before.GetPorts().end(), after.GetPorts().begin(),
                         isSame);
}

bool CSenderUndoRedo::Move(int steps)
{
    if (m_current < 0 || steps < -m_current || steps >= GetStepCount() - m_current)
        return false;
    LeaveStep();
    m_current += steps;
    return true;
}

/// A sender that was saved while it differed from its step has no step to come back to as saved.
void CSenderUndoRedo::LeaveStep()
{
    if (m_apart && m_saved == m_current)
        m_saved = -1;
    m_apart = false;
}

int CSenderUndoRedo::GetStepCount() const
{
    return m_state ? static_cast<int>(m_state->steps.size()) : 0;
}

const CSenderRecordItem* CSenderUndoRedo::GetStep(int position) const
{
    return position < 0 || position >= GetStepCount() ? nullptr
                                                      : m_state->steps[static_cast<size_t>(position)].get();
}

bool CSenderUndoRedo::Restore(CSender* sender, int shownPort)
{
    return Restore(sender, shownPort, nullptr);
}

bool CSenderUndoRedo::Restore(CSender* sender, int shownPort, QVector<int>* changed)
{
    return Restore(sender, shownPort, changed, false);
}

bool CSenderUndoRedo::Restore(CSender* sender, int shownPort, QVector<int>* changed, bool hiddenPortsToo)
{
    if (m_current < 0)
        return false;
    const CSenderRecordItem::Ports& ports = GetStep(m_current)->GetPorts();
    bool whole = true;
    for (int i = 0; i < kMaxPorts; ++i) {
        const LayoutSnapshot::Pointer& wanted = ports[static_cast<size_t>(i)];
        LayoutTracker& tracker = m_state->trackers[static_cast<size_t>(i)];
        CPort& port = *sender->GetPort(i);
        const LayoutSnapshot::Pointer before = changed ? tracker.Take(port) : LayoutSnapshot::Pointer();
        const bool mayChange = hiddenPortsToo || port.IsVisible();
        whole = RestorePort(port, tracker, wanted, mayChange) && whole;
        if (mayChange && i == shownPort)
            sender->SetRecentPortIndex(i);
        if (changed && tracker.Take(port) != before)
            changed->append(i);
    }
    m_apart = !whole;
    return whole;
}
