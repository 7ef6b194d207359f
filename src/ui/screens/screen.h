#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <initializer_list>

namespace velmora {

class Page;

/// A section of the window. It refreshes only while somebody can see it, rests while it is hidden or the
/// window is minimised, and catches up when it is shown.
class Screen : public QWidget {
    Q_OBJECT

public:
    Screen(AppStore& store, QWidget* parent);

protected:
    using Change = void (AppStore::*)();

    /// Refreshes after these signals of the store.
    void refreshOn(std::initializer_list<Change> changes);
    /// The page fills the screen, which becomes its parent.
    void setPage(Page* page);
    Page& page() { return *page_; }

    /// Shows what the store knows now. Called only while the screen can be seen.
    virtual void refresh() = 0;

    void showEvent(QShowEvent* event) override;

    AppStore& store_;

private:
    void refreshIfSeen();

    Page* page_ = nullptr;
};

} // namespace velmora
