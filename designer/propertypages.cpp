#include "propertypages.h"

#include "documentcontroller.h"
#include "pageform.h"
#include "portactions.h"

#include <orvantools/portload.h>

#include <QLocale>
#include <QTabWidget>

namespace {

constexpr int kMostFrames = 1000;

/// A part of a size as a field of its own.
Field<int> PartOf(const Field<QSize>& size, const QString& label, int& (QSize::*part)())
{
    const auto read = [size, part] {
        QSize whole = size.read();
        return (whole.*part)();
    };
    const auto write = [size, part](int value) {
        QSize whole = size.read();
        (whole.*part)() = value;
        size.write(whole);
    };
    return {label, size.tip, read, write};
}

} // namespace

PropertyPages::PropertyPages(DocumentController& document, SenderEdits& edits, const PortActions& actions,
                             QTabWidget& tabs)
    : QObject(&tabs), m_document(document), m_edits(edits)
{
    MakePort(actions, tabs);
    MakeSender(tabs);
    MakePrintedForm(tabs);
}

void PropertyPages::MakePort(const PortActions& actions, QTabWidget& tabs)
{
    auto* page = new PageForm(m_document, &tabs);
    tabs.addTab(page, tr("Port"));
    page->AddInfo(tr("Port:"), [this] {
        return tr("%1 of %2").arg(Port().GetPortIndex() + 1).arg(Sender().GetPortCount());
    });
    page->AddSwitch({tr("Shown"), tr("Hidden ports are neither drawn nor edited"),
                     [this] { return Port().IsVisible(); },
                     [this, &actions](bool on) { m_edits.SetShown(actions.Place(), on); }});
    page->AddSwitch({tr("Locked"), tr("Cabinets of a locked port stay as they are"),
                     [this] { return Port().IsFlagLock(); },
                     [this, &actions](bool on) { m_edits.SetLocked(actions.Place(), on); }});
    page->AddInfo(tr("Cabinets:"), [this] { return QLocale().toString(Port().GetTileSet().GetCount()); });
    const auto pixels = [this] { return OrvanTools::PixelsOf(Port().GetTileSet()); };
    page->AddInfo(tr("Pixels:"), [pixels] { return QLocale().toString(pixels()); });
    page->AddInfo(tr("Load:"), [this, pixels] {
        const OrvanTools::PortCapacity capacity = OrvanTools::CapacityOf(Sender());
        return tr("%1 of %2 pixels at %3 Hz and %4 bit")
            .arg(capacity.PercentText(Port().IsBackupDest() ? 0 : pixels()),
                 QLocale().toString(capacity.Carried()), QString::number(capacity.framesPerSecond),
                 QString::number(capacity.colorBits));
    });
    page->AddInfo(tr("Backup of:"), [this, &actions] {
        return Port().IsBackupDest() ? tr("%1; cabinets of its own are kept until that ends")
                                           .arg(m_edits.SourceText(actions.Place()))
                                     : tr("none");
    });
    for (QAction* action : actions.GetActions())
        page->AddAction(action);
}

void PropertyPages::MakeSender(QTabWidget& tabs)
{
    auto* page = new PageForm(m_document, &tabs);
    tabs.addTab(page, tr("Sender"));
    page->AddText(SenderField<QString>(tr("Name:"),
                                       tr("What the sender is called in the tree and on the sheets"),
                                       &CSender::GetSenderName, &CSender::SetSenderName));
    page->AddLine({tr("Print as:"), tr("Its name on the printed form, printed when ticked"),
                   [this] {
                       return SPrintLine{Sender().IsPrintNameEnable(), Sender().GetPrintName()};
                   },
                   [this](const SPrintLine& name) { m_edits.SetPrintName(Index(), name); }});
    page->AddChoice({tr("Ports:"), tr("How many ports the sender has"),
                     [this] { return Sender().GetPortCount(); },
                     [this, page](int count) { m_edits.SetPortCount(Index(), count, page); }},
                    SenderEdits::GetPortCounts());
    AddPlaces(*page);
    page->AddNumber(SenderField<int>(tr("Frequency in Hz:"),
                                     tr("Frames a second; twice as many halve what a port carries"),
                                     &CSender::GetSignalFreq, &CSender::SetSignalFreq),
                    0, kMostFrames, tr("not set (60)"));
    page->AddChoice(SenderField<int>(tr("Bits a colour:"),
                                     tr("The more of them, the fewer pixels a port carries"),
                                     &CSender::GetColorDepth, &CSender::SetColorDepth),
                    {0, 8, 10, 12}, tr("not set (8)"));
}

void PropertyPages::AddPlaces(PageForm& page)
{
    const auto canvas = SenderField<QSize>({}, tr("Pixels of the picture that the sender shows"),
                                           &CSender::GetCanvasSize, &CSender::SetCanvasSize);
    page.AddNumber(PartOf(canvas, tr("Canvas width:"), &QSize::rwidth), -1, kMaxCanvasWidth, tr("none"));
    page.AddNumber(PartOf(canvas, tr("Canvas height:"), &QSize::rheight), -1, kMaxCanvasHeight, tr("none"));
    const auto readOffset = [this] {
        const QSize offset = Sender().GetOffset();
        return offset == QSize(-1, -1) ? QSize(0, 0) : offset; // none was set
    };
    const Field<QSize> offset{{},
                              tr("Pixels by which the whole layout is moved on the canvas"),
                              readOffset,
                              [this](const QSize& size) { m_edits.SetOffset(Index(), size); }};
    page.AddNumber(PartOf(offset, tr("Moved right by:"), &QSize::rwidth), -kMaxCanvasWidth, kMaxCanvasWidth);
    page.AddNumber(PartOf(offset, tr("Moved down by:"), &QSize::rheight), -kMaxCanvasHeight,
                   kMaxCanvasHeight);
}

void PropertyPages::MakePrintedForm(QTabWidget& tabs)
{
    const std::pair<QString, SPrintLine SPrintFormData::*> lines[] = {
        {tr("Project:"), &SPrintFormData::projectName},          {tr("Designer:"), &SPrintFormData::designer},
        {tr("Date of design:"), &SPrintFormData::designDate},    {tr("Approver:"), &SPrintFormData::approver},
        {tr("Date of approval:"), &SPrintFormData::approveDate},
    };
    auto* page = new PageForm(m_document, &tabs);
    tabs.addTab(page, tr("Project"));
    for (const auto& [label, line] : lines)
        page->AddLine({label, tr("A line of the printed form, printed when ticked"),
                       [this, line = line] { return m_document.GetProject().GetPrintSetData()->*line; },
                       [this, line = line](const SPrintLine& text) { m_edits.SetPrintLine(line, text); }});
}
