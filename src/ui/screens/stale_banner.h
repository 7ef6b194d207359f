#pragma once

#include "store/app_store.h"
#include "ui/look/text.h"
#include "ui/look/ui_clock.h"

#include <QWidget>

namespace velmora {

class SBButton;
class Text;
class TextLine;

/// Warns that the state is out of date or not received yet, with its age, the reason and a link to the
/// settings. On the overview it also replaces the banner of a mission: it names the phase and links to the
/// live screen.
class StaleBanner : public QWidget {
    Q_OBJECT

public:
    /// `screen` is the section that shows the banner: live or overview.
    StaleBanner(AppStore& store, QWidget* parent, Section screen = Section::live);

    /// Whether to show the banner; false while the first connection attempt is pending.
    static bool isDue(const AppStore& store);
    /// Returns a text such as "Picture 42 s old".
    static QString pictureAge(const AppStore& store);

    /// Updates the age of the picture. On the live screen the banner does it itself, every second.
    void refresh();
    /// The link to the live screen; hidden on that screen and without a mission.
    QWidget* openButton() const;
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::vector<TextRun> detail() const;
    QString explanation() const;

    AppStore& store_;
    Section screen_;
    Text* title_;
    TextLine* detail_;
    SBButton* open_;
    UiTimer everySecond_{std::chrono::seconds(1)};
};

} // namespace velmora
