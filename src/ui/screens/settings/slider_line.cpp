#include "ui/screens/settings/slider_line.h"

#include "model/truncated.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/slider.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QHBoxLayout>

#include <algorithm>

namespace velmora {

SliderLine::SliderLine(const QString& label, const Range& range, QWidget* parent)
    : QWidget(parent),
      unit_(range.unit),
      slider_(new Slider(label, range.lower, range.upper, this)),
      value_(new Text({}, Type::sliderValue, SB::ink, this)) {
    setFixedHeight(Measure::sliderRow);
    auto* name = new Text(label, Type::sliderLabel, SB::ink, this);
    name->setFixedWidth(Measure::sliderLabel);
    value_->setFixedWidth(Measure::sliderValue);
    value_->setAlignment(Qt::AlignRight);
    auto* row = bareLayout<QHBoxLayout>(this, Measure::gap20);
    row->addWidget(name, 0, Qt::AlignVCenter);
    row->addWidget(slider_, 1, Qt::AlignVCenter);
    row->addWidget(value_, 0, Qt::AlignVCenter);
    connect(slider_, &Slider::moved, this, &SliderLine::moved);
}

void SliderLine::setValue(double value) {
    const std::int64_t shown = truncated(value);
    value_->setText(QString::number(shown) + ' ' + unit_);
    slider_->setAccessibleDescription(value_->text());
    slider_->setValue(
        static_cast<int>(std::clamp<std::int64_t>(shown, slider_->minimum(), slider_->maximum())));
}

} // namespace velmora
