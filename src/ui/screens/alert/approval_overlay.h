#pragma once

#include "ui/blocks/overlay_card.h"
#include "ui/guard/answer_guard.h"

namespace velmora {

class AnswerPanel;
class ApprovalMetrics;
class ApprovalPicture;
class Text;

/// The card that asks the owner whether the drone may launch. It covers every section while an alert waits,
/// also if the server is silent: until the alert's deadline, or until the owner hides it.
class ApprovalOverlay : public OverlayCard {
    Q_OBJECT

public:
    ApprovalOverlay(AppStore& store, AnswerGuard& guard, QWidget* window);

    /// Opens or closes the card for the store's alert. The window calls it once, after adding the card to its
    /// layout; later changes are detected here.
    void updateAlert();

signals:
    /// The card opened, or switched to another alert.
    void asked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void build();
    void arrange();
    QLayout* compactLayout();
    QLayout* enlargedLayout();
    void setEnlarged(bool enlarged);
    void updateSize();
    QSize enlargedPicture() const;
    void refresh();
    void showState(const LiveState& state);
    void countDown();

    AppStore& store_;
    AnswerGuard& guard_;
    ApprovalPicture* picture_;
    QWidget* lower_; ///< everything below the picture
    Text* title_;
    Text* body_;
    QWidget* line_;
    ApprovalMetrics* metrics_;
    AnswerPanel* answers_;
    Transition growth_; ///< 0 compact, 1 enlarged
    bool enlarged_ = false;
    UiTimer countdown_{std::chrono::milliseconds(250)};
    std::optional<AlertId> asked_; ///< the alert shown on the card
    bool hidden_ = false;          ///< by the owner, until the link is back or the alert changes
    bool wasLive_ = false;
};

} // namespace velmora
