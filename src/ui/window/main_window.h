#pragma once

#include "store/app_store.h"

#include <QWidget>

class QGridLayout;

namespace velmora {

class AboutCard;
class AnswerGuard;
class ApprovalOverlay;
class CommandMenus;
class ConfirmationCard;
class HistoryView;
class LandConfirmation;
class LiveView;
class OverlayCard;
class ReportJob;
class ReportProgress;
class ResizeBands;
class SectionStack;
class TitleStrip;
class Toast;
class WelcomeView;

/// The main window: title strip, sidebar, selected section, and the cards on top. The other sections are
/// built after the first frame, one between two events.
class MainWindow : public QWidget {
    Q_OBJECT

public:
    explicit MainWindow(AppStore& store);

    /// Builds the sections that are still missing.
    void buildSections();

signals:
    /// Once: after the first frame, or without one if the window starts hidden or is not painted for seconds.
    void started();

protected:
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addSections();
    QWidget* buildLive();
    QWidget* buildHistory();
    HistoryView& history();
    void beginBuilding();
    void buildNextSection();
    void buildLayout();
    void buildCards();
    void addShortcuts();
    void addOverlay(OverlayCard* overlay);
    void addToast();
    void closePopupsAndDialogs();
    void showSection();
    void showWelcome();
    void askToClearDemo();
    void showFailedExport(const QString& why);
    void followReport(ReportJob& job);
    void updateLayers();
    void coverMaps();
    bool isFailureShown(Command command) const;
    bool isCovered() const;

    AppStore& store_;
    AnswerGuard* guard_;
    CommandMenus* menus_;
    QGridLayout* layers_; ///< content, cards, resize bands and toast, stacked in one cell
    TitleStrip* strip_;
    QWidget* content_; ///< sidebar and section
    WelcomeView* welcome_;
    SectionStack* stack_;
    bool wasPainted_ = false;
    bool buildsSections_ = false;
    ApprovalOverlay* approval_;
    LandConfirmation* landing_;
    ConfirmationCard* clearDemo_;    ///< asks before the demo history is cleared
    ConfirmationCard* exportFailed_; ///< explains why an export failed
    ReportProgress* report_;         ///< how far a long report is
    AboutCard* about_;
    QList<OverlayCard*> overlays_;
    ResizeBands* bands_;
    Toast* toast_;
};

} // namespace velmora
