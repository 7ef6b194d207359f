#pragma once

#include "ui/screens/overview/overview_words.h"

#include <QWidget>

namespace velmora {

class SBButton;
class StaleBanner;
class StatusDot;
class Text;

/// Facts in one line, as many as fit: the last ones are left out first.
class MissionFacts : public QWidget {
    Q_OBJECT

public:
    explicit MissionFacts(QWidget* parent);

    void setFacts(const std::vector<MissionFact>& facts);
    /// How many facts fit into the width.
    std::size_t fitting() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateToolTip();
    std::vector<MissionFact> facts_;
};

/// A dark banner with the phase and the facts of the current mission and a link to the live screen.
class ActiveBanner : public QWidget {
    Q_OBJECT

public:
    ActiveBanner(AppStore& store, QWidget* parent);

    void refresh();
    /// The link to the live screen.
    QWidget* openButton() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppStore& store_;
    StatusDot* dot_;
    Text* phase_;
    MissionFacts* facts_;
    SBButton* open_;
};

/// The banner of the overview: the current mission, or a silent link. Both have the same height.
class OverviewBanner : public QWidget {
    Q_OBJECT

public:
    OverviewBanner(AppStore& store, QWidget* parent);

    /// Whether there is a mission or a silent link.
    bool isDue() const;
    void refresh();
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

private:
    AppStore& store_;
    ActiveBanner* active_;
    StaleBanner* stale_;
};

} // namespace velmora
