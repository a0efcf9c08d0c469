#include "senderpage.h"

#include "documentcontroller.h"
#include "senderedits.h"

namespace {

constexpr int kMostFrames = 1000;

} // namespace

SenderPage::SenderPage(DocumentController& document, SenderEdits& edits, QWidget* parent)
    : PageForm(document, edits, parent)
{
    AddNames();
    AddChoice(
        tr("P&orts:"), tr("How many ports the sender has"), SenderEdits::GetPortCounts(),
        [](int count) { return QString::number(count); }, [this] { return Sender().GetPortCount(); },
        [this](int count) { m_edits.SetPortCount(Index(), count, this); });
    AddPlace();
    AddSignal();
}

CSender& SenderPage::Sender() const
{
    return *m_document.GetSender();
}

int SenderPage::Index() const
{
    return m_document.GetProject().GetCurSenderIndex();
}

void SenderPage::AddNames()
{
    AddText(
        tr("&Name:"), tr("What the sender is called in the tree and on the sheets"),
        [this] { return Sender().GetSenderName(); },
        [this](const QString& name) { m_edits.SetName(Index(), name); });
    AddLine(
        tr("P&rint as:"), tr("Its name on the printed form, printed when ticked"),
        [this] {
            return SPrintLine{Sender().IsPrintNameEnable(), Sender().GetPrintName()};
        },
        [this](const SPrintLine& name) { m_edits.SetPrintName(Index(), name); });
}

void SenderPage::AddPlace()
{
    AddSize(
        tr("&Canvas width:"), tr("Canvas &height:"), tr("Pixels of the picture that the sender shows"), false,
        [this] { return Sender().GetCanvasSize(); },
        [this](const QSize& size) { m_edits.SetCanvas(Index(), size); });
    AddSize(
        tr("Moved right b&y:"), tr("Moved &down by:"),
        tr("Pixels by which the whole layout is moved on the canvas"), true,
        [this] {
            const QSize offset = Sender().GetOffset();
            return offset == QSize(-1, -1) ? QSize(0, 0) : offset; // that means that none was set
        },
        [this](const QSize& offset) { m_edits.SetOffset(Index(), offset); });
}

void SenderPage::AddSize(const QString& across, const QString& down, const QString& tip, bool mayBeNegative,
                         const Read<QSize>& read, const Write<QSize>& write)
{
    for (const bool isAcross : {true, false}) {
        const int most = isAcross ? kMaxCanvasWidth : kMaxCanvasHeight;
        AddNumber(
            isAcross ? across : down, tip, mayBeNegative ? -most : -1, most,
            mayBeNegative ? QString() : tr("none"),
            [isAcross, read] { return isAcross ? read().width() : read().height(); },
            [isAcross, read, write](int value) {
                QSize size = read();
                (isAcross ? size.rwidth() : size.rheight()) = value;
                write(size);
            });
    }
}

void SenderPage::AddSignal()
{
    AddNumber(
        tr("Fre&quency in Hz:"), tr("Frames a second; twice as many halve what a port carries"), 0,
        kMostFrames, tr("not set (60)"), [this] { return Sender().GetSignalFreq(); },
        [this](int hertz) { m_edits.SetFrequency(Index(), hertz); });
    AddChoice(
        tr("&Bits a colour:"), tr("The more of them, the fewer pixels a port carries"), {0, 8, 10, 12},
        [](int bits) { return bits > 0 ? QString::number(bits) : tr("not set (8)"); },
        [this] { return Sender().GetColorDepth(); }, [this](int bits) { m_edits.SetDepth(Index(), bits); });
}
