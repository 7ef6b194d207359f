#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"

#include <QWidget>

namespace velmora {

class Text;

/// Warns that the state is out of date or not received yet, with its age, the reason and a link to the
/// settings.
class StaleBanner : public QWidget {
    Q_OBJECT

public:
    StaleBanner(AppStore& store, QWidget* parent);

    /// Whether to show the banner; false while the first connection attempt is pending.
    static bool isDue(const AppStore& store);
    /// Returns a text such as "Picture 42 s old".
    static QString pictureAge(const AppStore& store);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void refresh();

    AppStore& store_;
    Text* title_;
    Text* detail_;
    UiTimer everySecond_{std::chrono::seconds(1)};
};

} // namespace velmora
