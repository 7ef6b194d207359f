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
    /// Draws the value in the label's colour, for values that may be out of date.
    void setDimmed(bool dimmed);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString label_, value_, unit_;
    TextStyle style_;
    std::optional<QColor> tint_;
    bool dark_;
    bool dimmed_ = false;
};

} // namespace velmora
