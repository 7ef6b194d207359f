#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace velmora {

/// A frameless vertical scroll area with an OverlayScrollBar. Content that continues below can fade into the
/// page.
class ScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollArea(QWidget* parent);

    /// Height of the fade at the bottom while more content follows, in pixels; 0 for none.
    void setFade(int pixels);
    /// Makes the area focusable with Tab, and scrollable with the arrow keys, while its content does not fit.
    void enableKeyboardScrolling();

private:
    class Fade;

    Fade* fade_;
};

} // namespace velmora
