#include "formats/samplexml.h"
#include "frame/runtimedata.h"
#include "params/fieldname.h"
#include "params/paramtext.h"
#include "support/projecttest.h"
#include "support/wallbuilder.h"

#include <functional>

namespace {

/// Counts and what tells processors apart are needed to reach the values. The rest is the sender's own.
const QRegularExpression kStructure(
    "Count$|^(CheckValue|bSpecifyIP|SenderType|DeviceType|NetIP|ParamFileMainVersion|"
    "DeviceReserveFlag|DeviceGuid|DeviceClass)$"_s);

/// The values of a record in the order in which it declares them, which no name in a file decides; "-" stands
/// for a record inside that is as it was made.
class ValuesInOrder
{
public:
    template <class R> static std::string Of(const R& record, const char* separator)
    {
        std::string text;
        const auto add = [&](const auto& value) { text += (text.empty() ? "" : separator) + Text(value); };
        std::apply([&](const auto&... values) { (add(values), ...); }, record.Values());
        return text;
    }

private:
    static std::string Text(const PortGroupName& name) { return name.data(); }
    static std::string Text(const QColor& color) { return color.name().toStdString(); }
    static std::string Text(const QPointF& point) { return Text(point.x()) + ',' + Text(point.y()); }
    template <class T, size_t n> static std::string Text(const std::array<T, n>& values)
    {
        return All(values);
    }
    template <class T> static std::string Text(const QList<T>& values) { return '[' + All(values) + ']'; }
    template <class T> static std::string Text(const QVector<T>& values) { return '[' + All(values) + ']'; }
    template <class T> static std::string Text(const T& value)
    {
        if constexpr (params::kIsRecord<T>)
            return value == T() ? "-" : Of(value, " ");
        else
            return paramtext::ToText(value);
    }
    template <class List> static std::string All(const List& values)
    {
        std::string text;
        for (const auto& value : values)
            text += (text.empty() ? "" : " ") + Text(value);
        return text;
    }
};

struct ParamSampleTest : ProjectTest
{
    /// Two senders as in the samples, one with picture values of its own.
    ParamSampleTest()
    {
        const QUuid ids[] = {QUuid("{513c9595-dafb-4d1e-9f00-fce30301cab7}"_s),
                             QUuid("{d3cbe907-e273-42d7-9f07-5f0244d56622}"_s)};
        for (int i = 0; i < 2; ++i) {
            CSender& sender = *project.NewSender();
            sender.SetId(ids[i]);
            sender.SetNetSenderIP(3232235777U + i);
            sender.SetProcessorType(17);
            sender.SetDeviceClass(2 + 2 * i);
            sender.SetPortCount(2);
            SSupportOptionsInfo support;
            support.portGroupBrightness = true;
            sender.SetProcessorSupportInfo(support);
        }
        GetRuntimeData()->SetImpExpPrepareInfo({true, {0, 1}});
    }

    QByteArray Values() const
    {
        std::string text;
        for (CSender* s : project.GetSenders()) {
            text += ValuesInOrder::Of(s->Params(), "\n") + '\n'
                    + Row(s->GetCanvasSize().width(), s->GetCanvasSize().height());
            for (int port = 0; port < 2; ++port) {
                const QRect area = s->GetPort(port)->GetPortArea();
                text += Row(area.x(), area.y(), area.width(), area.height());
            }
            text += '\n';
        }
        return QByteArray::fromStdString(text);
    }

    using Transfer = quint32 (CProjectData::*)(const QString&, const QUuid&);

    void ExpectSample(const char* name, const char* values, Transfer take, Transfer write)
    {
        const QByteArray sample = FullSample(name);
        const QString hollow = folder.Write("hollow.xml"_s, Hollow(sample, kStructure));
        const QUuid every;
        const auto taken = [&](const QString& path) {
            EXPECT_EQ(std::invoke(take, project, path, every), 0U);
        };
        const auto written = [&] {
            const QString path = folder.Path("a.xml"_s);
            EXPECT_EQ(std::invoke(write, project, path, every), 0U);
            return ReadFile(path);
        };
        taken(hollow);
        const QByteArray empty = written();
        EXPECT_EQ(NamesWithoutOwnValue(sample, empty, kStructure), "");

        taken(folder.Write("b.xml"_s, sample));
        EXPECT_EQ(FirstDifference(Values(), Told(values)), "");
        for (CSender* sender : project.GetSenders()) { // the areas of the ports are the samples' then
            MakeWall(*sender->GetPort(0), {2, 1, QSize(128, 64), QPoint(10, 20)});
            MakeWall(*sender->GetPort(1), {1, 1, QSize(128, 64), QPoint(300, 400)});
        }
        EXPECT_EQ(FirstDifference(written(), sample), "");

        for (CSender* sender : project.GetSenders())
            for (int port = 0; port < 2; ++port)
                sender->GetPort(port)->GetPortProject()->ClearAllTiles();
        taken(hollow);
        EXPECT_EQ(FirstDifference(written(), empty), "") << "what a file lacks is not the last file's";
    }
};

} // namespace

TEST_F(ParamSampleTest, ProcessorFileIsReadByTheValueAndWrittenByTheByte)
{
    ExpectSample("device-params.xml", "device-params.txt", &CProjectData::ImportMutiProcessorParam,
                 &CProjectData::ExportMutiProcessorParam);
}

TEST_F(ParamSampleTest, SenderFileIsReadByTheValueAndWrittenByTheByte)
{
    ExpectSample("sender-params.xml", "sender-params.txt", &CProjectData::ImportMutiSenderParam,
                 &CProjectData::ExportMutiSenderParam);
}
