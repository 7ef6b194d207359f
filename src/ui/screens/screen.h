#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <initializer_list>

namespace velmora {

class Page;

/// A section of the window. It refreshes only while it is visible and the window is not minimised, and once
/// when it is shown.
class Screen : public QWidget {
    Q_OBJECT

public:
    Screen(AppStore& store, QWidget* parent);

protected:
    using Change = void (AppStore::*)();

    /// Calls refresh() after these signals of the store while the screen can be seen.
    void refreshOn(std::initializer_list<Change> changes);
    /// Takes ownership of the page, which fills the screen.
    void setPage(Page* page);
    Page& page() { return *page_; }

    /// Updates the widgets from the store. Called only while the screen can be seen.
    virtual void refresh() = 0;

    void showEvent(QShowEvent* event) override;

    AppStore& store_;

private:
    void refreshIfVisible();

    Page* page_ = nullptr;
};

} // namespace velmora
