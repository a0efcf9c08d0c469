#pragma once

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <vector>

/// A device to paint on that keeps nothing but where each text lies.
class TextRecorder : public QPaintDevice
{
public:
    struct Text
    {
        QString text;
        QRectF box; ///< of the letters themselves
    };

    std::vector<Text> texts;

    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        const bool isCount = metric == PdmWidth || metric == PdmHeight || metric == PdmNumColors;
        return isCount ? 100000 : metric == PdmDepth ? 32 : metric == PdmDevicePixelRatioScaled ? 65536 : 96;
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(std::vector<Text>& texts) : QPaintEngine(AllFeatures), m_texts(texts) {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState&) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawPath(const QPainterPath&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
        Type type() const override { return User; }
        void drawTextItem(const QPointF& place, const QTextItem& item) override
        {
            const QRectF letters = QFontMetricsF(item.font()).tightBoundingRect(item.text());
            m_texts.push_back(
                {item.text().trimmed(), painter()->worldTransform().mapRect(letters.translated(place))});
        }

    private:
        std::vector<Text>& m_texts;
    };

    mutable Engine m_engine{texts};
};
