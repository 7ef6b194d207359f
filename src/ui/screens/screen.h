#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"

#include <QWidget>

#include <initializer_list>

namespace velmora {

class Page;

/// A section of the window. It refreshes only while it is visible and the window is not minimised: when it is
/// shown, and then every minute, because days end.
class Screen : public QWidget {
    Q_OBJECT

public:
    Screen(AppStore& store, QWidget* parent);

protected:
    using Change = void (AppStore::*)();

    /// Calls refresh() after these signals of the store while the screen can be seen.
    void refreshOn(std::initializer_list<Change> changes);
    /// While the screen can be seen, calls follow() whenever something moves, and refresh() for its words as
    /// often as they can be read.
    void followMotion();
    /// Takes ownership of the page, which fills the screen.
    void setPage(Page* page);
    Page& page() { return *page_; }

    /// Updates the widgets from the store. Called only while the screen can be seen.
    virtual void refresh() = 0;
    /// Updates what shows motion itself, such as a map.
    virtual void follow() {}

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    AppStore& store_;

private:
    bool canBeSeen() const;
    void showMotion();
    void refreshIfVisible();
    void refreshNow();

    Page* page_ = nullptr;
    Date refreshedAt_;
    UiTimer due_{std::chrono::milliseconds(200), UiTimer::Mode::singleShot}; ///< runs while words are old
    UiTimer everyMinute_{std::chrono::minutes(1)};                           ///< runs while shown
};

} // namespace velmora
