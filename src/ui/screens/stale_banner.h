#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"

#include <QWidget>

namespace velmora {

class Text;

/// Says that the picture is old, or that none has come yet: why, how old it is, and where to look.
class StaleBanner : public QWidget {
    Q_OBJECT

public:
    StaleBanner(AppStore& store, QWidget* parent);

    /// Whether there is something to say; a server that is only being connected to may still answer.
    static bool isDue(const AppStore& store);
    /// "Picture 42 s old".
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
