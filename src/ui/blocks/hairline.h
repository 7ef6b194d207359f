#pragma once

#include <QColor>
#include <QWidget>

namespace velmora {

/// A thin line between two blocks.
class Hairline : public QWidget {
public:
    enum class Tone {
        first,   ///< above the first row of a block
        between, ///< between two rows
        dark     ///< on navy
    };

    explicit Hairline(QWidget* parent, Tone tone = Tone::first);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
};

} // namespace velmora
