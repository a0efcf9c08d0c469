#pragma once

#include "layout/tile.h"
#include "project/layoutdescription.h"
#include "project/layoutprogress.h"
#include "project/numberedchildren.h"
#include "project/readreport.h"

#include <QSet>
#include <QUuid>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Readers of the layout elements, for a stream and for a DOM tree alike. A reader fills its target when
// its element ends and tells the report what it passed over. Once the report refuses the file, layouts are no
// longer written to; what was filled before is for the caller to drop.

/// The cabinets of one port.
class TileSetReader : public XmlHandler
{
public:
    explicit TileSetReader(ReadReport& report); ///< [ref]

    /// [ref] A null sender id or a port of -1 takes what the file says. A count below 1 leaves the set as it
    /// is.
    void SetTarget(CTileSet* tiles, const QUuid& senderId, int portIndex);

    void Begin(XmlAttributes& attributes) override;
    XmlHandler* Child(std::string_view name) override;
    void End() override;

private:
    class TileReader : public XmlHandler
    {
    public:
        explicit TileReader(TileSetReader& set) : m_set(set) {}
        void Begin(XmlAttributes& attributes) override;

    private:
        TileSetReader& m_set;
        StoredTileMaker m_maker;
    };

    ReadReport& m_report;
    CTileSet* m_target = nullptr;
    QUuid m_senderId;
    int m_portIndex = -1;
    int m_read = 0; ///< of the whole file
    TileReader m_tileReader;
    NumberedChildren<std::unique_ptr<CTile>> m_tiles;
};

/// Frees a group with all below it.
struct GroupTreeDeleter
{
    void operator()(CTileGroup* group) const;
};

using GroupTree = std::unique_ptr<CTileGroup, GroupTreeDeleter>;

/// One level of a group tree: the element of a group, or the one above all groups.
class GroupLevelReader : public XmlHandler
{
public:
    /// [ref] `left`: how many groups of the file are still read.
    GroupLevelReader(ReadReport& report, int& left, int depth);

    /// [ref] The group to fill, and the name of its element, with which its children's names begin.
    void SetTarget(CTileGroup* group, std::string_view name);
    int GetCount() const { return m_children->GetCount(); } ///< what the element states

    void Begin(XmlAttributes& attributes) override;
    XmlHandler* Child(std::string_view name) override;
    void End() override;

private:
    ReadReport& m_report;
    int& m_left;
    int m_depth;
    CTileGroup* m_group = nullptr;
    std::string m_prefix;
    std::unique_ptr<NumberedChildren<GroupTree>> m_children;
    std::unique_ptr<GroupLevelReader> m_below;
};

/// The group tree of one port.
class GroupTreeReader : public XmlHandler
{
public:
    explicit GroupTreeReader(ReadReport& report); ///< [ref]

    void SetTarget(CTileGroupSet* groups); ///< [ref] left as it is when the count is below 1
    void SetNames(std::string_view prefix) { m_prefix = prefix; } ///< of the groups' elements

    void Begin(XmlAttributes& attributes) override;
    XmlHandler* Child(std::string_view name) override { return m_top.Child(name); }
    void End() override;

private:
    ReadReport& m_report;
    CTileGroupSet* m_target = nullptr;
    std::string m_prefix = layoutnames::kGroup;
    GroupTree m_tree; ///< a group that holds those of the element
    int m_left = layoutnames::kMaxGroupsOfFile;
    GroupLevelReader m_top;
};

/// One port with its layout.
class PortReader : public XmlHandler
{
public:
    explicit PortReader(ReadReport& report); ///< [ref]

    /// [ref] With `keepLocked` a locked port is passed over.
    void SetTarget(CPort* port, const QUuid& senderId, int portIndex, bool keepLocked);

    void Begin(XmlAttributes& attributes) override;
    XmlHandler* Child(std::string_view name) override;
    void End() override;

private:
    CPort* m_target = nullptr; ///< null while a locked port is passed over
    QUuid m_senderId;
    int m_portIndex = 0;
    PortFields m_fields;
    bool m_hasTiles = false; ///< of elements that a port should hold once, the first counts
    bool m_hasGroups = false;
    TileSetReader m_tiles;
    GroupTreeReader m_groups;
    ReadReport& m_report;
};

/// One sender with its ports, into a sender that exists.
class SenderReader : public XmlHandler
{
public:
    explicit SenderReader(ReadReport& report, LayoutProgress* progress = nullptr); ///< [ref]

    void SetTarget(CSender* sender, SenderParts parts, bool keepLocked); ///< [ref]
    void StartList() { m_ids.clear(); } ///< of senders that come into being: each gets an id of its own

    void Begin(XmlAttributes& attributes) override;
    XmlHandler* Child(std::string_view name) override;
    void End() override;

private:
    QUuid UniqueId(const QUuid& fileId);

    CSender* m_target = nullptr;
    SenderParts m_parts = SenderParts::Project;
    bool m_keepLocked = false;
    QSet<QUuid> m_ids; ///< of the list so far
    LayoutProgress* m_progress;
    NumberedChildren<int> m_ports;
    PortReader m_portReader;
};

/// All senders of a project.
class SenderLayoutReader : public XmlHandler
{
public:
    using Senders = std::vector<std::unique_ptr<CSender>>;

    /// [ref] `senders` is filled when the element ends; `progress` (may be empty) receives percents on the
    /// way.
    SenderLayoutReader(ReadReport& report, Senders& senders, std::function<void(int)> progress);

    void Begin(XmlAttributes& attributes) override;
    XmlHandler* Child(std::string_view name) override;
    void End() override;

private:
    Senders& m_result;
    LayoutProgress m_progress;
    NumberedChildren<std::unique_ptr<CSender>> m_senders;
    SenderReader m_senderReader;
};

/// [new] The senders, for a project to own.
QList<CSender*> Released(SenderLayoutReader::Senders& senders);
