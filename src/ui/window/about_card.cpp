#include "ui/window/about_card.h"

#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/blocks/wordmark.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QCoreApplication>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr double shieldEdge = Measure::wordmarkShield / 10.0; // empty, left of the shield in its square

} // namespace

AboutCard::AboutCard(QWidget* window) : OverlayCard(Measure::confirmationCard, window) {
    setAccessibleName(tr("About Velmora"));
    auto* close = new SBButton(tr("Close"), {.kind = SBButtonKind::secondary}, card());
    column()->setContentsMargins(Measure::confirmationMargins);
    column()->addWidget(new Wordmark(-shieldEdge, card()));
    column()->addSpacing(Measure::gap16);
    column()->addWidget(new Text(tr("Velmora %1").arg(QCoreApplication::applicationVersion()),
                                 Type::confirmationTitle, SB::ink, card()));
    column()->addSpacing(Measure::gap8);
    column()->addWidget(
        new Text(tr("Watches your grounds, asks before it flies, and keeps a record of every visit."),
                 Type::confirmationBody, SB::body, card()));
    column()->addSpacing(Measure::gap8);
    column()->addWidget(new Label2(tr("Set in Inter, under the SIL Open Font License."), false, card()));
    column()->addSpacing(Measure::gap24);
    column()->addWidget(close, 0, Qt::AlignRight);
    connect(close, &SBButton::clicked, this, &OverlayCard::close);
    connect(this, &OverlayCard::dismissed, this, &OverlayCard::close);
}

} // namespace velmora
