#pragma once

#include <QColor>
#include <QWidget>

namespace velmora {

/// A thin line between two blocks.
class Hairline : public QWidget {
public:
    enum class Tone {
        first,
        between,
        dark
    }; ///< the first line of a block, one between its rows, one on navy

    explicit Hairline(QWidget* parent, Tone tone = Tone::first);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
};

} // namespace velmora
