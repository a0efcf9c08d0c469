#pragma once

#include <OrvanData/orvandata.h>

#include <QString>

#include <functional>

namespace OrvanTools {

/// Builds a small wall step by step in the open document, as a person does it in the windows of the host:
/// product library, blocks of cabinets, groups, rotation, numbering, undo and redo. Every step checks its
/// result.
class SampleWall
{
public:
    using Tell = std::function<void(const QString& line)>;

    explicit SampleWall(Tell tell);

    /// False at the first step that failed; GetFault says which.
    bool Build();
    QString GetFault() const { return m_fault; }

private:
    bool WriteProducts();
    bool AddSender();
    bool PlaceBlocks();
    bool NumberPorts();
    bool GroupAndRotate();
    bool UndoAndRedo();
    bool FillForm();

    bool Place(int port, const SMD5& type, const QRect& grid, const QSize& cabinet, const QSize& receivers);
    bool Record(CProjectUndoRedo::Type type);
    bool Done(bool well, const QString& what); ///< tells what was done, or remembers it as the fault

    Tell m_tell;
    QString m_fault;
    CSender* m_sender = nullptr; ///< [ref] of the open document
    SMD5 m_plain;
    SMD5 m_multi;
};

/// Whether two projects hold the same; `difference` names the first place where they do not.
bool IsSameProject(const CProjectData& a, const CProjectData& b, QString* difference);

} // namespace OrvanTools
