#pragma once

#include "ui/look/text.h"

#include <QWidget>

namespace velmora {

/// One line of text in several styles. A line that is too long is elided and shown in full in a tooltip.
class TextLine : public QWidget {
    Q_OBJECT

public:
    /// `height` is the line's height in pixels.
    TextLine(double height, QWidget* parent);

    void setRuns(const std::vector<TextRun>& runs);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateToolTip();

    std::vector<TextRun> runs_;
};

} // namespace velmora
