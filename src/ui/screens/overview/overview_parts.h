#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <vector>

namespace velmora {

class AnswerButton;
class AnswerGuard;
class SBButton;
class StatusDot;
class Text;

/// Shows whether the system is armed, with the buttons to arm and disarm it.
class ArmSwitch : public QWidget {
    Q_OBJECT

public:
    ArmSwitch(AppStore& store, QWidget* parent);

    void refresh();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppStore& store_;
    StatusDot* dot_;
    Text* word_;
    SBButton* disarm_;
    SBButton* arm_;
};

/// A dark banner with the phase of the current mission and a link to the live screen.
class ActiveBanner : public QWidget {
    Q_OBJECT

public:
    ActiveBanner(AppStore& store, QWidget* parent);

    void refresh();
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppStore& store_;
    StatusDot* dot_;
    Text* phase_;
};

/// The buttons for demo visits, or the launch button while an alert waits.
class VisitOffers : public QWidget {
    Q_OBJECT

public:
    VisitOffers(AppStore& store, AnswerGuard& guard, QWidget* parent);

    void refresh();

private:
    AppStore& store_;
    Text* heading_;
    std::vector<SBButton*> visits_;
    AnswerButton* launch_;
};

} // namespace velmora
