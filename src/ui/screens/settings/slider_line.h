#pragma once

#include <QWidget>

namespace velmora {

class Slider;
class Text;

/// A limit: its label, a slider, and its value cut to a whole number with the unit.
class SliderLine : public QWidget {
    Q_OBJECT

public:
    struct Range {
        int lower;
        int upper;
        QString unit;
    };

    SliderLine(const QString& label, const Range& range, QWidget* parent);

    /// Shows the value as it is, also outside the range. Emits nothing.
    void setValue(double value);

signals:
    void moved(int value);

private:
    QString unit_;
    Slider* slider_;
    Text* value_;
};

} // namespace velmora
