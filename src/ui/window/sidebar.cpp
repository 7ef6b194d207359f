#include "ui/window/sidebar.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/wordmark.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/window/section_row.h"
#include "ui/window/status_badges.h"

#include <QVBoxLayout>

namespace velmora {

Sidebar::Sidebar(AppStore& store, QWidget* parent) : QWidget(parent), store_(store) {
    setFixedWidth(Measure::sidebar);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Measure::sidebarSide, Measure::sidebarTop, Measure::sidebarSide + 1,
                               Measure::sidebarBottom);
    column->setSpacing(Measure::gap4);
    column->addWidget(new Wordmark(Measure::sectionPadding, this));
    column->addSpacing(Measure::gap20 - Measure::gap4);
    addSections();
    column->addStretch(1);
    column->addLayout(buildFooter());

    connect(&store_, &AppStore::sectionChanged, this, &Sidebar::showSection);
    connect(&store_, &AppStore::stateChanged, this, &Sidebar::showFlight);
    connect(&store_, &AppStore::freshnessChanged, this, &Sidebar::showFlight);
    showSection();
    showFlight();
}

QVBoxLayout* Sidebar::buildFooter() {
    auto* column = new QVBoxLayout;
    column->setContentsMargins(Measure::sectionPadding, 0, Measure::sectionPadding, 0);
    column->setSpacing(0);
    column->addWidget(new Hairline(this, Hairline::Tone::between));
    column->addWidget(new DroneBadge(store_, this));
    column->addWidget(new Hairline(this, Hairline::Tone::between));
    column->addWidget(new LinkBadge(store_, this));
    return column;
}

void Sidebar::addSections() {
    const struct {
        Section section;
        Icon icon;
        QString title;
    } sections[] = {{Section::overview, Icon::overview, tr("Overview")},
                    {Section::live, Icon::live, tr("Live flight")},
                    {Section::history, Icon::history, tr("History")},
                    {Section::cameras, Icon::cameras, tr("Cameras")},
                    {Section::settings, Icon::settings, tr("Settings")}};
    for (const auto& [section, icon, title] : sections) {
        auto* row = new SectionRow(icon, title, this);
        connect(row, &SectionRow::toggled, this, [this, shown = section](bool on) {
            if (on)
                store_.setSection(shown);
        });
        layout()->addWidget(row);
        rows_[section] = row;
    }
}

void Sidebar::showSection() {
    // Tab reaches only the current row; the arrow keys move between rows.
    for (const auto& [section, row] : rows_)
        row->setFocusPolicy(section == store_.section() ? Qt::TabFocus : Qt::NoFocus);
    SectionRow* current = rows_[store_.section()];
    current->setChecked(true);
    if (focusWidget() && focusWidget()->hasFocus() && focusWidget() != current)
        current->setFocus(Qt::OtherFocusReason);
}

void Sidebar::showFlight() {
    const Phase phase = store_.phase();
    std::optional<SectionMark> mark;
    if (store_.freshness() != Freshness::live)
        mark = SectionMark{SB::edge, false};
    else if (phase == Phase::awaitingApproval)
        mark = SectionMark{SB::caution, false};
    else if (airborne(phase))
        mark = SectionMark{SB::dot, true};
    rows_[Section::live]->setMark(mark);
}

void Sidebar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), SB::panel);
    paintHairline(painter, {width() - 1, 0, 1, height()}, SB::rule);
}

} // namespace velmora
