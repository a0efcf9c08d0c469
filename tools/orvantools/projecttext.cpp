#include "orvantools/projecttext.h"

#include "orvantools/cabinetchain.h"
#include "orvantools/printable.h"
#include "orvantools/projectrows.h"

#include <OrvanData/orvandata.h>

#include <QStringList>

namespace OrvanTools {

namespace {

constexpr int kLabelWidth = 16;

QString Row(const char* label, const QString& value)
{
    return QString::fromLatin1(label).leftJustified(kLabelWidth) + Printable(value) + QLatin1Char('\n');
}

QString PrintRow(const char* label, const SPrintLine& line)
{
    if (line.text.isEmpty())
        return {};
    return Row(label, line.enable ? line.text : line.text + QStringLiteral(" (not printed)"));
}

QString BoundText(const CTileSet& tiles)
{
    if (tiles.GetCount() == 0)
        return QStringLiteral("-");
    const QRect bound = tiles.GetBound(false, QSize());
    return SizeText(bound.width(), bound.height()) + QStringLiteral(" at ") + QString::number(bound.left())
           + QLatin1Char(',') + QString::number(bound.top());
}

QString BackupText(const CProjectData& project, const CPort& port)
{
    const int sender = project.GetScIndexByID(port.GetBackupSrcSenderId());
    const QString name = port.GetBackupSrcIP() != 0 ? AddressText(port.GetBackupSrcIP())
                         : sender >= 0              ? project.GetShowSenderName(sender, true)
                                                    : QStringLiteral("an unknown sender");
    return QStringLiteral("backup of ") + name + QStringLiteral(", port ")
           + QString::number(qint64(port.GetBackupSrcPortIndex()) + 1);
}

QString PortRow(const CProjectData& project, const CPort& port, const PortCapacity& capacity)
{
    const CTileSet& tiles = port.GetTileSet();
    QStringList notes;
    if (port.IsBackupDest())
        notes.append(BackupText(project, port));
    if (port.IsFlagLock())
        notes.append(QStringLiteral("locked"));
    if (!port.IsVisible())
        notes.append(QStringLiteral("hidden"));

    QString row = QStringLiteral("  ");
    for (const int number :
         {port.GetPortIndex() + 1, tiles.GetCount(), NumberedCount(tiles), tiles.GetRcvCount()})
        row += QString::number(number).rightJustified(9) + QLatin1Char(' ');
    row += capacity.PercentText(PixelsOf(tiles)).rightJustified(9) + QStringLiteral("  ");
    row += BoundText(tiles).leftJustified(22) + Printable(notes.join(QStringLiteral(", ")));
    while (row.endsWith(QLatin1Char(' ')))
        row.chop(1);
    return row + QLatin1Char('\n');
}

QString SenderText(const CProjectData& project, int index, const PortCapacity& capacity)
{
    const CSender& sender = *project.GetSender(index);
    QString title = project.GetShowSenderName(index, true) + QStringLiteral(", canvas ")
                    + CanvasText(sender.GetCanvasSize());
    if (sender.GetNetSenderIP() != 0)
        title += QStringLiteral(", ") + AddressText(sender.GetNetSenderIP());
    if (index == project.GetCurSenderIndex())
        title += QStringLiteral(", current");
    QString text = QLatin1Char('\n') + Row(qPrintable(QStringLiteral("Sender %1").arg(index + 1)), title);
    text += QStringLiteral("       port  cabinets  numbered receivers      load  layout\n");
    for (int i = 0; i < sender.GetPortCount(); ++i)
        text += PortRow(project, *sender.GetPort(i), capacity);
    return text;
}

} // namespace

QString SummarizeProject(const CProjectData& project, const PortCapacity& capacity)
{
    const SPrintFormData& form = *project.GetPrintSetData();
    QString text = PrintRow("Project", form.projectName) + PrintRow("Designer", form.designer)
                   + PrintRow("Design date", form.designDate) + PrintRow("Approver", form.approver)
                   + PrintRow("Approve date", form.approveDate);
    if (project.GetDemoModeEnable())
        text += Row("Demo mode", QStringLiteral("sender type %1").arg(project.GetDemoSenderType()));
    text += Row("Senders", QString::number(project.GetSenderCount()));
    for (int i = 0; i < project.GetSenderCount(); ++i)
        text += SenderText(project, i, capacity);
    const QList<SParameterFileInfo> files = project.GetParameterFiles();
    if (!files.isEmpty())
        text += QStringLiteral("\nParameter files\n");
    for (const SParameterFileInfo& file : files)
        text += QStringLiteral("  ") + file.type.ToString() + QStringLiteral("  ") + Printable(file.name)
                + QLatin1Char('\n');
    return text;
}

} // namespace OrvanTools
