#include "painted_texts.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace gullymark::testing_support {
namespace {

/// Keeps the texts, and drops all else.
class TextKeeper : public QPaintEngine {
  public:
    TextKeeper() : QPaintEngine(AllFeatures) {}

    std::vector<PaintedText> texts;

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawPolygon(const QPoint* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        if (item.text().trimmed().isEmpty()) {
            return;
        }
        const QRectF box(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        // A marked text is painted twice: marked, and plain with what is marked clipped away.
        if (painter()->hasClipping() && !painter()->clipPath().contains(box.center())) {
            return;
        }
        // What does not fit into its widget ends at its edge.
        const QRect where = painter()->deviceTransform().mapRect(box).toAlignedRect();
        const QRect seen = systemClip().isEmpty() ? where : where & systemClip().boundingRect();
        if (seen.contains(where.center())) {
            texts.push_back({item.text(), seen, painter()->pen().color()});
        }
    }
    [[nodiscard]] Type type() const override { return User; }
};

class TextDevice : public QPaintDevice {
  public:
    explicit TextDevice(QSize size) : size_(size) {}

    mutable TextKeeper engine;

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine; }

  protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmWidth:
                return size_.width();
            case PdmHeight:
                return size_.height();
            case PdmWidthMM:
            case PdmHeightMM:
                return 100;
            case PdmDepth:
                return 32;
            case PdmDevicePixelRatio:
            case PdmNumColors:
                return 1;
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(devicePixelRatioFScale());
            default:
                return 96;
        }
    }

  private:
    QSize size_;
};

}  // namespace

std::vector<PaintedText> painted_texts(QWidget& window) {
    TextDevice device(window.size());
    window.render(&device);
    return device.engine.texts;
}

}  // namespace gullymark::testing_support
