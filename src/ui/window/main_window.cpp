#include "ui/window/main_window.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/confirmation_card.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/reading_order.h"
#include "ui/blocks/toast.h"
#include "ui/guard/answer_guard.h"
#include "ui/look/art.h"
#include "ui/look/measures.h"
#include "ui/look/words.h"
#include "ui/map/site_map.h"
#include "ui/report/report_job.h"
#include "ui/report/report_progress.h"
#include "ui/screens/alert/approval_overlay.h"
#include "ui/screens/cameras/cameras_view.h"
#include "ui/screens/history/history_view.h"
#include "ui/screens/live/land_confirmation.h"
#include "ui/screens/live/live_view.h"
#include "ui/screens/overview/overview_view.h"
#include "ui/screens/settings/settings_view.h"
#include "ui/screens/welcome/welcome_view.h"
#include "ui/window/about_card.h"
#include "ui/window/command_menus.h"
#include "ui/window/resize_bands.h"
#include "ui/window/section_stack.h"
#include "ui/window/sidebar.h"
#include "ui/window/title_strip.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr std::size_t longReport = 50;              // visits; a longer report shows its progress
constexpr std::chrono::seconds longestUnpainted(3); // some shown windows are never painted

} // namespace

MainWindow::MainWindow(AppStore& store)
    : store_(store),
      guard_(new AnswerGuard(store, *this)),
      menus_(new CommandMenus(store, this)),
      stack_(new SectionStack(this)) {
    declareRole(this, QAccessible::Window);
    setWindowTitle(QStringLiteral("Velmora"));
    setObjectName(QStringLiteral("main"));
    setWindowFlag(Qt::FramelessWindowHint);
    setMinimumSize(Measure::windowMinimum);
    resize(Measure::windowDefault.boundedTo(screen()->availableSize()));
    addSections();
    buildLayout();
    buildCards();
    new FocusRing(this);
    bands_ = new ResizeBands(this);
    layers_->addLayout(bands_, 0, 0);
    addToast();
    addShortcuts();
    connect(menus_, &CommandMenus::aboutRequested, about_, &OverlayCard::open);
    connect(menus_, &CommandMenus::quitRequested, qApp, &QCoreApplication::quit);
    connect(menus_, &CommandMenus::answered, this, [this](Command command, CommandSource source) {
        guard_->answer(command, guard_->admit(), source);
    });
    connect(&store_, &AppStore::sectionChanged, this, &MainWindow::showSection);
    connect(&store_, &AppStore::attentionRequested, this, [this] { QApplication::alert(this); });
    connect(&store_, &AppStore::commandFailed, this, [this](Command command, const QString& reason) {
        if (!isFailureShown(command))
            toast_->setMessage(failureText(command, reason), Toast::Tone::failure);
    });
    connect(&store_, &AppStore::showWelcomeChanged, this, &MainWindow::showWelcome);
    approval_->updateAlert();
    QTimer::singleShot(longestUnpainted, this, &MainWindow::beginBuilding);
    showSection();
    showWelcome();
    updateLayers();
}

void MainWindow::buildCards() {
    approval_ = new ApprovalOverlay(store_, *guard_, this);
    landing_ = new LandConfirmation(store_, this);
    clearDemo_ = new ConfirmationCard(
        {tr("Clear the demo history?"), {}, tr("Keep it"), tr("Clear demo history")}, this);
    exportFailed_ = new ConfirmationCard({tr("The file was not saved"), {}, tr("Close"), {}}, this);
    report_ = new ReportProgress(this);
    about_ = new AboutCard(this);
    for (OverlayCard* overlay :
         std::initializer_list<OverlayCard*>{approval_, landing_, clearDemo_, exportFailed_, report_, about_})
        addOverlay(overlay);
    connect(clearDemo_, &ConfirmationCard::confirmed, this, [this] {
        store_.clearDemoHistory();
        history().focusContent();
    });
    connect(approval_, &ApprovalOverlay::asked, this, &MainWindow::closePopupsAndDialogs);
    connect(approval_, &ApprovalOverlay::asked, report_, &ReportProgress::detach);
}

/// A report can fail while an alert waits or the drone flies. A card would cover the answers or the controls
/// of the flight.
void MainWindow::showFailedExport(const QString& why) {
    if (store_.phase() != Phase::docked) {
        toast_->setMessage(why, Toast::Tone::failure);
        return;
    }
    exportFailed_->setBody(why + ' ' + tr("Choose another folder and export it again."));
    exportFailed_->open();
}

/// A long report has a card, which would cover the answers or the controls of a flight.
void MainWindow::followReport(ReportJob& job) {
    if (job.visits() >= longReport && store_.phase() == Phase::docked)
        report_->follow(job);
    connect(&job, &ReportJob::finished, this, [this](const QString& error) {
        if (error.isEmpty())
            toast_->setMessage(tr("The report is saved."), Toast::Tone::success);
    });
}

/// Closes every menu and dialog of the program, including the tray's, because they would cover the alert or
/// take the first click on it.
void MainWindow::closePopupsAndDialogs() {
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QDialog*>(window))
            dialog->reject();
}

void MainWindow::addSections() {
    stack_->addSection(Section::overview, [this] { return new OverviewView(store_, *guard_, stack_); });
    stack_->addSection(Section::live, [this] { return buildLive(); });
    stack_->addSection(Section::history, [this] { return buildHistory(); });
    stack_->addSection(Section::cameras, [this] { return new CamerasView(store_, stack_); });
    stack_->addSection(Section::settings, [this] { return new SettingsView(store_, stack_); });
    connect(stack_, &SectionStack::built, this, &MainWindow::coverMaps);
    connect(&store_, &AppStore::recordRequested, this, [this](RecordKey key) { history().openRecord(key); });
    connect(&store_, &AppStore::patternsRequested, this, [this] { history().openPatterns(); });
}

QWidget* MainWindow::buildLive() {
    auto* live = new LiveView(store_, stack_);
    connect(live, &LiveView::landRequested, this, [this, live] { landing_->ask(*live); });
    return live;
}

QWidget* MainWindow::buildHistory() {
    auto* history = new HistoryView(store_, stack_);
    connect(history, &HistoryView::clearDemoRequested, this, &MainWindow::askToClearDemo);
    connect(history, &HistoryView::exportFailed, this, &MainWindow::showFailedExport);
    connect(history, &HistoryView::reportStarted, this, [this](ReportJob* job) { followReport(*job); });
    return history;
}

HistoryView& MainWindow::history() {
    return *static_cast<HistoryView*>(stack_->widgetOf(Section::history));
}

void MainWindow::buildSections() {
    if (!std::exchange(buildsSections_, true))
        emit started();
    store_.loadHistory();
    while (stack_->buildNext()) {
    }
}

/// One section between two events, so that neither ticks nor keys wait for all of them.
void MainWindow::buildNextSection() {
    if (stack_->buildNext())
        QTimer::singleShot(0, this, &MainWindow::buildNextSection);
    else
        Art::dropUnused();
}

void MainWindow::beginBuilding() {
    if (std::exchange(buildsSections_, true))
        return;
    emit started();
    connect(&store_, &AppStore::historyChanged, this, &MainWindow::buildNextSection,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    store_.readHistoryInThread();
}

/// The window is painted before its children, so the frame is complete one turn of the event loop later.
void MainWindow::paintEvent(QPaintEvent*) {
    if (!std::exchange(wasPainted_, true))
        QTimer::singleShot(0, this, &MainWindow::beginBuilding);
}

void MainWindow::buildLayout() {
    strip_ = new TitleStrip(menus_, this);
    content_ = new QWidget(this);
    auto* row = bareLayout<QHBoxLayout>(content_);
    row->addWidget(new Sidebar(store_, content_));
    row->addWidget(stack_, 1);
    welcome_ = new WelcomeView(store_, this);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(strip_);
    column->addWidget(content_, 1);
    column->addWidget(welcome_, 1);
    layers_ = bareLayout<QGridLayout>(this);
    layers_->addLayout(column, 0, 0);
}

/// Shortcuts for the sections, the history's search, the menus and closing the window. Those that reach
/// content under a card are ignored while a card is open.
void MainWindow::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, action] {
            if (!isCovered() && !store_.showWelcome())
                action();
        });
    };
    int key = Qt::Key_1;
    for (const auto& [section, id] : rawValuesOf<Section>)
        add(QKeySequence(Qt::CTRL | Qt::Key(key++)), [this, shown = section] { store_.setSection(shown); });
    add(QKeySequence::Find, [this] {
        if (store_.section() == Section::history)
            history().focusSearch();
    });
    connect(new QShortcut(QKeySequence(Qt::Key_F10), this), &QShortcut::activated, this,
            [this] { menus_->setActiveAction(menus_->actions().front()); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), this), &QShortcut::activated, this,
            &QWidget::close);
}

void MainWindow::addOverlay(OverlayCard* overlay) {
    overlays_.append(overlay);
    layers_->addWidget(overlay, 0, 0);
    connect(overlay, &OverlayCard::openChanged, this, &MainWindow::updateLayers);
}

/// Adds the toast in the middle of the title strip, above the cards and their veil.
void MainWindow::addToast() {
    toast_ = new Toast(this);
    auto* strip = new QVBoxLayout;
    strip->setContentsMargins(Measure::sidebar, Measure::gap4, Measure::sidebar, 0);
    strip->addWidget(toast_, 0, Qt::AlignHCenter | Qt::AlignTop);
    layers_->addLayout(strip, 0, 0);
}

/// The card shows the failure of an answer while the link is live, Live flight that of a flight command.
bool MainWindow::isFailureShown(Command command) const {
    return answersAlert(command) ? approval_->isOpen() && store_.freshness() == Freshness::live
                                 : store_.section() == Section::live && !approval_->isOpen();
}

bool MainWindow::isCovered() const {
    return std::ranges::any_of(overlays_, [](const OverlayCard* overlay) { return overlay->isOpen(); });
}

/// Pauses maps that a card covers.
void MainWindow::coverMaps() {
    for (SiteMap* map : stack_->findChildren<SiteMap*>())
        map->setCovered(std::ranges::any_of(
            overlays_, [map](const OverlayCard* overlay) { return overlay->covers(*map); }));
}

/// Keeps the alert above other cards, the title strip above every veil, and the resize handles above
/// everything.
void MainWindow::updateLayers() {
    coverMaps();
    if (approval_->isOpen())
        approval_->raise();
    strip_->setVeiled(isCovered());
    menus_->setCovered(isCovered());
    strip_->raise();
    toast_->raise();
    bands_->raise();
}

void MainWindow::askToClearDemo() {
    const auto demo =
        std::ranges::count_if(store_.history(), [](const HistoryEntry& entry) { return entry.record->demo; });
    clearDemo_->setBody(demo == 1
                            ? tr("One rehearsed visit goes. Visits that were really flown stay.")
                            : tr("%1 rehearsed visits go. Visits that were really flown stay.").arg(demo));
    clearDemo_->open();
}

/// Hiding the focused widget moves focus to another control, which the next key press would trigger, so this
/// focuses the window first.
void MainWindow::showWelcome() {
    const bool welcome = store_.showWelcome();
    setFocus();
    welcome_->setVisible(welcome);
    content_->setVisible(!welcome);
    strip_->setOverSidebar(!welcome);
}

/// Takes the same precaution as showWelcome(). Tab then continues inside the new section.
void MainWindow::showSection() {
    const bool focusInSection = focusWidget() && stack_->isAncestorOf(focusWidget());
    if (focusInSection)
        setFocus();
    stack_->showSection(store_.section());
    if (focusInSection && focusWidget() == this)
        stack_->widgetOf(store_.section())->setFocus(Qt::OtherFocusReason);
}

bool MainWindow::focusNextPrevChild(bool next) {
    return focusInReadingOrder(*this, next);
}

} // namespace velmora
