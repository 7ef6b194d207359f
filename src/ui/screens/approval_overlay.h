#pragma once

#include "store/app_store.h"
#include "ui/blocks/overlay_card.h"

#include <QTimer>

namespace velmora {

class ApprovalPicture;
class Metric;
class SBButton;
class Text;

/// Asks the owner whether the drone may launch, over every section. It cannot be answered by accident: for
/// the first moment after it comes into sight it takes neither clicks nor keys.
class ApprovalOverlay : public OverlayCard {
    Q_OBJECT

public:
    ApprovalOverlay(AppStore& store, QWidget* window);

    /// Sends the answer, unless the card is still guarded or not there.
    void answer(Command command);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void build();
    QWidget* buildMetrics();
    QWidget* buildButtons();
    void followPhase();
    void refresh();
    void countDown();
    void beginGuard();
    void guard(bool guarded);
    void stepAside();

    AppStore& store_;
    ApprovalPicture* picture_;
    Text* title_;
    Text* body_;
    Metric* match_;
    Metric* battery_;
    Metric* wind_;
    Metric* expires_;
    SBButton* ignore_;
    SBButton* launch_;
    QTimer guardTime_;
    QTimer countdown_;
    std::optional<std::string> asked_;    ///< the alert that the card asks about
    std::optional<Date> answeredAt_;      ///< when the owner last answered it
    std::optional<std::string> unheeded_; ///< an alert whose answer had no effect
    double wholeTime_ = 0;                ///< seconds that were left when the alert came
};

} // namespace velmora
