#pragma once

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <vector>

/// A device to paint on that keeps nothing but where the letters of each text lie.
class TextRecorder : public QPaintDevice, private QPaintEngine
{
public:
    TextRecorder() : QPaintEngine(AllFeatures) {}

    std::vector<std::pair<QString, QRectF>> texts;

    QPaintEngine* paintEngine() const override { return const_cast<TextRecorder*>(this); }

private:
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmDepth ? 32 : metric == PdmDevicePixelRatioScaled ? 65536 : 100000;
    }
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
        texts.emplace_back(item.text(), painter()->worldTransform().mapRect(letters.translated(place)));
    }
};
