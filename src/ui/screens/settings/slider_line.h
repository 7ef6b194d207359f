#pragma once

#include <QWidget>

namespace velmora {

class Slider;
class Text;

/// A limit: label, slider, and the value truncated to an integer with its unit.
class SliderLine : public QWidget {
    Q_OBJECT

public:
    struct Range {
        int lower;
        int upper;
        QString unit;
    };

    SliderLine(const QString& label, const Range& range, QWidget* parent);

    /// Shows the value even if it is outside the range. Does not emit `moved`.
    void setValue(double value);

signals:
    void moved(int value);

private:
    QString unit_;
    Slider* slider_;
    Text* value_;
};

} // namespace velmora
