#pragma once

#include "ledger.h"
#include "support/random.h"
#include "ui/window/main_window.h"

namespace velmora {

/// Simulates an owner who acts at random: stages visits, answers or ignores alerts, commands the drone, opens
/// sections and records, changes settings, and resizes, hides and shows the window.
class Owner {
public:
    Owner(SeededRandom& random, AppStore& store, Ledger& ledger, QWidget& window)
        : random_(random), store_(store), ledger_(ledger), window_(window) {}

    /// Acts for one second; each kind of action has its own probability.
    void act() {
        sometimes(1.0 / 30, [this] { ledger_.simulate(random_.anyOf<Scenario>()); });
        sometimes(1.0 / 30, [this] { command(); });
        sometimes(1.0 / 10, [this] { store_.setSection(random_.anyOf<Section>()); });
        sometimes(1.0 / 30, [this] { openRecord(); });
        sometimes(1.0 / 60, [this] { changeSettings(); });
        sometimes(1.0 / 60, [this] { window_.setVisible(!window_.isVisible()); });
        sometimes(1.0 / 60, [this] { window_.resize(1100 + small(500), 720 + small(300)); });
        sometimes(1.0 / 300, [this] { store_.setArmed(random_.chance(0.8)); });
        sometimes(1.0 / 600, [this] { store_.applyLinkMode(!store_.settings().linkMode); });
        while (store_.history().size() > recordsKept)
            store_.removeRecord(store_.history().back().key);
    }

private:
    static constexpr std::size_t recordsKept = 40; ///< a bounded history keeps memory constant

    template <class Action>
    void sometimes(double chance, Action action) {
        if (!random_.chance(chance))
            return;
        action();
        ledger_.update();
    }
    int small(std::size_t limit) { return static_cast<int>(random_.below(limit)); }

    void openRecord() {
        const std::size_t chosen = random_.below(recordsKept);
        if (chosen < store_.history().size())
            store_.openRecord(store_.history()[chosen].key);
    }

    /// Approves most alerts, so that missions are flown.
    void command() {
        const auto alert = store_.waitingAlert();
        const auto any = random_.anyOf<Command>();
        if (alert)
            store_.answer(random_.chance(0.8) ? Command::approve : any, *alert, CommandSource::card);
        else
            store_.send(any, CommandSource::live);
    }

    void changeSettings() {
        Settings settings = store_.settings();
        settings.flightHeight = random_.uniform(10, 25);
        settings.followDistance = random_.uniform(8, 25);
        settings.returnBattery = random_.uniform(20, 60);
        settings.approvalSeconds = random_.uniform(20, 90);
        settings.maxWindKmh = random_.uniform(15, 40);
        settings.tracking = random_.anyOf<TrackingMode>();
        store_.setSettings(settings);
    }

    SeededRandom& random_;
    AppStore& store_;
    Ledger& ledger_;
    QWidget& window_;
};

} // namespace velmora
