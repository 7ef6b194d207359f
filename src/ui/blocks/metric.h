#pragma once

#include "ui/look/type.h"

#include <QColor>
#include <QWidget>

#include <optional>

namespace velmora {

/// One labelled value with its unit. Assistive technology reads it as "Height, 15 m".
class Metric : public QWidget {
    Q_OBJECT

public:
    enum class Size { regular, telemetry };

    Metric(const QString& label, Size size, bool dark, QWidget* parent);

    void setValue(const QString& value, const QString& unit);
    /// Colours value and unit; nullopt restores the default colours.
    void setTint(const std::optional<QColor>& tint);
    /// Draws value and unit in the page's colour, for a pill behind them.
    void setOnPill(bool onPill);
    bool isOnPill() const { return onPill_; }
    /// Where that pill lies; it reaches over the widget's edges, so that the parent paints it.
    QRectF pill() const;
    /// Explains the value in a line below, wrapped to the widget's width; empty for none.
    void setReason(const QString& reason);
    /// Draws the value in the label's colour, for values that may be out of date.
    void setDimmed(bool dimmed);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();
    const TextStyle& valueStyle() const;
    double outdent() const;
    int valueHeight() const;
    QStringList reasonLines(int width) const;

    QString label_, value_, unit_, reason_;
    TextStyle style_;
    std::optional<QColor> tint_;
    bool dark_;
    bool dimmed_ = false;
    bool onPill_ = false;
};

} // namespace velmora
