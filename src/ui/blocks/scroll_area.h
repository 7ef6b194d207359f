#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace velmora {

/// A vertical scroll area without a frame, whose slim bar lies over the content and shows while it scrolls or
/// the pointer is over it. Content that goes on below can fade into the page.
class ScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollArea(QWidget* parent);

    /// Height over which the end fades into the page while more follows, pixels; 0 for none.
    void setFade(int pixels);
    /// While there is more than fits, the tab key stops here and the arrows scroll.
    void enableKeyboardScrolling();

private:
    class Fade;

    Fade* fade_;
};

} // namespace velmora
