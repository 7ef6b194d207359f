#include "ui/screens/history/history_filters.h"

#include "language/language.h"
#include "ui/blocks/choice.h"
#include "ui/blocks/flow_layout.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/menu_button.h"
#include "ui/blocks/text.h"
#include "ui/blocks/text_field.h"
#include "ui/look/measures.h"
#include "ui/look/words.h"
#include "ui/screens/history/active_filters.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

HistoryFilters::HistoryFilters(QWidget* parent)
    : QWidget(parent),
      search_(new TextField(tr("Search the history"), tr("Search"), this)),
      flight_(
          new SegmentedChoice(tr("Which visits"), {tr("All"), tr("Flown"), tr("Stayed docked")}, true, this)),
      camera_(new MenuButton(tr("Camera"), this)),
      span_(new MenuButton(tr("Span of time"), this)),
      demo_(new MenuButton(tr("Demo visits"), this)),
      count_(new Label2({}, false, this)),
      active_(new ActiveFilters(this)) {
    search_->setClearButtonEnabled(false);
    search_->installEventFilter(this);
    count_->setMaximumLines(1);
    auto* menus = new FlowLayout(Measure::gap16, Measure::gap8);
    for (MenuButton* menu : {camera_, span_, demo_})
        menus->addWidget(menu);
    auto* menuRow = new QHBoxLayout;
    menuRow->setSpacing(Measure::gap16);
    menuRow->addLayout(menus, 1);
    auto* counted = new QVBoxLayout; // centred on the first row of menus
    counted->addSpacing(static_cast<int>(Type::compactRow.line - Type::label2.line) / 2);
    counted->addWidget(count_);
    counted->addStretch(1);
    menuRow->addLayout(counted);
    auto* column = bareLayout<QVBoxLayout>(this, Measure::gap12);
    column->addWidget(search_);
    column->addWidget(flight_);
    column->addLayout(menuRow);
    column->addWidget(active_);
    column->addWidget(new Hairline(this));
    connectControls();
    showFilter();
}

void HistoryFilters::connectControls() {
    const auto set = [this](auto change) {
        return [this, change](const auto& value) {
            HistoryFilter filter = filter_;
            change(filter, value);
            setFilter(filter);
        };
    };
    connect(search_, &QLineEdit::textChanged, this,
            set([](HistoryFilter& filter, const QString& text) { filter.text = text; }));
    connect(flight_, &SegmentedChoice::activated, this, set([](HistoryFilter& filter, int option) {
                filter.flight = static_cast<HistoryFilter::Flight>(option);
            }));
    connect(camera_, &MenuButton::chose, this, set([this](HistoryFilter& filter, int option) {
                filter.camera = option == 0 ? QString() : cameras_.value(option - 1);
            }));
    connect(span_, &MenuButton::chose, this,
            set([](HistoryFilter& filter, int option) { filter.span = static_cast<VisitSpan>(option); }));
    connect(demo_, &MenuButton::chose, this, set([](HistoryFilter& filter, int option) {
                filter.demo = static_cast<HistoryFilter::Demo>(option);
            }));
    connect(active_, &ActiveFilters::removed, this, &HistoryFilters::setFilter);
    connect(active_, &ActiveFilters::focusNeeded, this, &HistoryFilters::left);
}

void HistoryFilters::setFilter(const HistoryFilter& filter) {
    if (filter == filter_)
        return;
    filter_ = filter;
    emit changed(); // first, so that what takes over the focus is visible
    showFilter();
}

void HistoryFilters::showFilter() {
    search_->setText(filter_.text);
    flight_->setCurrentIndex(static_cast<int>(filter_.flight));
    camera_->setOptions(QStringList{tr("All cameras")} + cameras_,
                        static_cast<int>(cameras_.indexOf(filter_.camera)) + 1);
    span_->setOptions({tr("7 days"), tr("30 days"), tr("A year"), tr("All time")},
                      static_cast<int>(filter_.span));
    demo_->setOptions({tr("With demo"), tr("No demo"), tr("Only demo")}, static_cast<int>(filter_.demo));
    active_->setFilter(filter_);
}

QString HistoryFilters::words() const {
    QStringList words;
    const HistoryFilter none;
    if (filter_.camera != none.camera)
        words.append(filter_.camera);
    if (filter_.flight != none.flight)
        words.append(filter_.flight == HistoryFilter::Flight::flown ? tr("Flown") : tr("Stayed docked"));
    if (filter_.span != none.span)
        words.append(span_->text());
    if (demo_->isVisibleTo(this))
        words.append(demo_->text());
    words.append(ActiveFilters::words(filter_));
    if (const QString text = filter_.text.trimmed(); !text.isEmpty())
        words.append(tr("“%1”", "text that was searched").arg(text));
    return words.join(QStringLiteral(" · "));
}

void HistoryFilters::offer(const std::vector<HistoryEntry>& history) {
    cameras_.clear();
    for (const HistoryEntry& entry : history)
        if (const QString name = shownText(entry.record->cameraName);
            !name.isEmpty() && !cameras_.contains(name))
            cameras_.append(name);
    cameras_.sort(Qt::CaseInsensitive);
    const bool demo =
        std::ranges::any_of(history, [](const HistoryEntry& entry) { return entry.record->demo; });
    demo_->setVisible(demo);
    HistoryFilter offered = filter_;
    if (!cameras_.contains(filter_.camera))
        offered.camera.clear();
    if (!demo)
        offered.demo = HistoryFilter::Demo::with;
    showFilter();
    setFilter(offered);
}

void HistoryFilters::setCount(std::size_t matching, std::size_t all) {
    const auto number = [](std::size_t count) { return displayLocale().toString(static_cast<int>(count)); };
    count_->setText(matching < all ? tr("%1 of %2").arg(number(matching), number(all))
                                   : visitsWords(static_cast<int>(all)));
    count_->setMinimumWidth(count_->sizeHint().width());
}

void HistoryFilters::focusSearch() {
    search_->setFocus(Qt::ShortcutFocusReason);
}

void HistoryFilters::clearSearch() {
    search_->clear();
}

bool HistoryFilters::eventFilter(QObject* watched, QEvent* event) {
    if (watched == search_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape)
            search_->clear();
        if (key == Qt::Key_Escape || key == Qt::Key_Down || key == Qt::Key_Return) {
            emit left();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace velmora
