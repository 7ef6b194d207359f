#include "ui/linked_ui_fixture.h"
#include "ui/look/measures.h"
#include "ui/screens/settings/limits_sketch.h"
#include "ui/screens/settings/settings_view.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QWheelEvent>

namespace velmora {

namespace {

const QString demoMode = QStringLiteral("Demo mode (built-in simulation)"),
              serverMode = QStringLiteral("velmora on my network"),
              portError = QStringLiteral("Not stored: a port is a whole number from 1 to 65535.");

class SettingsTest : public LinkedUiTest {
protected:
    void look() {
        store().setSection(Section::settings);
        window();
    }
    template <class Change>
    void set(Change change) {
        Settings settings = store().settings();
        change(settings);
        store().setSettings(settings);
    }
    QSlider& slider(const QString& name) {
        auto* found = find<QSlider>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        found->setFocus();
        return *found;
    }
    /// Whether the line of the slider shows this value.
    bool showsValue(const QString& name, const QString& value) {
        return find<QWidget>(*find<QSlider>(name)->parentWidget(), value) != nullptr;
    }
    void type(const QString& field, const QString& text) {
        auto* line = find<QLineEdit>(field);
        ASSERT_NE(line, nullptr);
        line->setFocus();
        line->selectAll();
        if (text.isEmpty())
            QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
        settle();
    }
    static void turnWheel(QWidget& widget) {
        const QPointF middle = widget.rect().center();
        QWheelEvent up(middle, widget.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &up);
    }
    QString shown(const QString& field) { return find<QLineEdit>(field)->text(); }
};

TEST_F(SettingsTest, ShowsTruncatedValuesWithoutStoringThem) {
    set([](Settings& s) {
        s.flightHeight = 15.9;
        s.boundaryBuffer = 45;
        s.approvalSeconds = 59.99;
        s.maxWindKmh = -2.5;
    });
    const Settings before = store().settings();
    const QByteArray file = content("settings.json");
    look();
    EXPECT_TRUE(showsValue("Flight height", "15 m"));
    EXPECT_TRUE(showsValue("Stay this far inside", "45 m"));
    EXPECT_TRUE(showsValue("Alert expires after", "59 s"));
    EXPECT_TRUE(showsValue("Don't launch if wind is over", "-2 km/h"));
    EXPECT_TRUE(showsValue("Return when battery is below", "30 %"));
    store().setSection(Section::overview);
    settle();
    store().setSection(Section::settings);
    settle();
    EXPECT_EQ(store().settings(), before);
    EXPECT_EQ(content("settings.json"), file);

    QTest::keyClick(&slider("Stay this far inside"), Qt::Key_Left);
    EXPECT_EQ(store().settings().boundaryBuffer, 14) << "an out-of-range value moves from the nearest bound";
    EXPECT_EQ(store().settings().flightHeight, 15.9) << "other settings keep their values";
}

TEST_F(SettingsTest, EverySliderStoresItsOwnLimitBetweenItsBounds) {
    const struct {
        QString name;
        double Settings::*field;
        double lower, upper;
    } limits[] = {{"Flight height", &Settings::flightHeight, 10, 30},
                  {"Never below", &Settings::minimumHeight, 8, 20},
                  {"Follow distance", &Settings::followDistance, 8, 30},
                  {"Stay this far inside", &Settings::boundaryBuffer, 2, 15},
                  {"Return when battery is below", &Settings::returnBattery, 20, 50},
                  {"Don't launch if wind is over", &Settings::maxWindKmh, 15, 38},
                  {"Alert expires after", &Settings::approvalSeconds, 30, 120}};
    look();
    for (const auto& limit : limits) {
        Settings expected = store().settings();
        const auto pressing = [&](Qt::Key key, double value) {
            QTest::keyClick(&slider(limit.name), key);
            expected.*limit.field = value;
            EXPECT_EQ(store().settings(), expected) << limit.name.toStdString() << ' ' << key;
        };
        pressing(Qt::Key_Home, limit.lower);
        pressing(Qt::Key_Left, limit.lower);
        pressing(Qt::Key_Right, limit.lower + 1);
        pressing(Qt::Key_PageUp, limit.lower + 6);
        pressing(Qt::Key_PageDown, limit.lower + 1);
        pressing(Qt::Key_End, limit.upper);
        pressing(Qt::Key_Down, limit.upper - 1);
    }
    EXPECT_TRUE(showsValue("Alert expires after", "119 s"));
    EXPECT_TRUE(content("settings.json").contains(R"("approvalSeconds":119)"));
}

TEST_F(SettingsTest, ClicksAndDragsMoveASlider) {
    look();
    QSlider& height = slider("Flight height");
    const int middle = height.height() / 2;
    QTest::mousePress(&height, Qt::LeftButton, {}, {height.width() / 2, middle});
    EXPECT_EQ(store().settings().flightHeight, 20);
    QTest::mouseMove(&height, {height.width() + 500, middle});
    QTest::mouseRelease(&height, Qt::LeftButton, {}, {height.width() - 1, middle});
    QTest::mouseClick(&height, Qt::RightButton, {}, {2, middle});
    EXPECT_EQ(store().settings().flightHeight, 30);
}

TEST_F(SettingsTest, APressBesideTheMiddleOfAThumbMovesItOnlyWhenDragged) {
    look();
    QSlider& wind = slider("Don't launch if wind is over");
    const int thumb = Measure::sliderThumb, middle = wind.height() / 2;
    const auto xOf = [&](int value) {
        return thumb / 2 +
               (wind.width() - thumb) * (value - wind.minimum()) / (wind.maximum() - wind.minimum());
    };
    const QPoint beside(xOf(30) + thumb / 2 - 2, middle);
    QTest::mousePress(&wind, Qt::LeftButton, {}, beside);
    EXPECT_EQ(store().settings().maxWindKmh, 30);
    QTest::mouseMove(&wind, beside + QPoint(xOf(32) - xOf(30), 0));
    QTest::mouseRelease(&wind, Qt::LeftButton, {}, beside);
    EXPECT_EQ(store().settings().maxWindKmh, 32);
}

TEST_F(SettingsTest, ANotchOfTheWheelMovesASliderByOneOnlyWhileItHasTheFocus) {
    look();
    QSlider& distance = slider("Follow distance");
    slider("Flight height");
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&distance, &move);
    turnWheel(distance);
    EXPECT_EQ(store().settings().followDistance, 15);
    slider("Follow distance");
    turnWheel(distance);
    EXPECT_EQ(store().settings().followDistance, 16);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&distance, &leave);
    turnWheel(distance);
    EXPECT_EQ(store().settings().followDistance, 16) << "the page was scrolled and brought the slider here";
}

TEST_F(SettingsTest, TheConnectionShowsTheServerOnlyInLinkMode) {
    const QString caption = "The computer running velmora serves the app API described in docs/APP_API.md.";
    look();
    EXPECT_TRUE(shows(caption));
    EXPECT_FALSE(shows("Host") || shows("Port"));
    click(serverMode);
    EXPECT_TRUE(store().settings().linkMode);
    EXPECT_TRUE(shows("Host") && shows("Port") && shows(caption));
    const auto tellsStatus = [&](const QString& text) {
        return find(*find<QLineEdit>("Host")->parentWidget(), text) != nullptr;
    };
    EXPECT_TRUE(tellsStatus("Connecting…"));
    refuse();
    EXPECT_TRUE(tellsStatus("Can't reach velmora — The connection was refused"));
    serve(LiveState::initial());
    EXPECT_TRUE(tellsStatus("Linked to velmora 2.1"));
    click(demoMode);
    EXPECT_FALSE(store().settings().linkMode);
    EXPECT_EQ(store().linkStatus(), LinkStatus::demo());
    EXPECT_TRUE(waitUntil([&] { return !shows("Host"); }));
    QTest::keyClick(find(demoMode), Qt::Key_Down);
    EXPECT_TRUE(store().settings().linkMode) << "the keyboard changes it too";
}

TEST_F(SettingsTest, TheHostIsStoredAsItIsTyped) {
    store().applyLinkMode(true);
    look();
    for (const QString typed : {" Velmora.local ", ""}) {
        type("Host", typed);
        EXPECT_EQ(store().settings().host, typed.toStdString());
        EXPECT_EQ(shown("Host"), typed);
    }
}

TEST_F(SettingsTest, AnInvalidPortIsNotStoredAndTheFieldShowsTheError) {
    store().applyLinkMode(true);
    look();
    for (const QString refused : {"0", "65536", "99999", ""}) {
        type("Port", refused);
        EXPECT_EQ(shown("Port"), refused);
        EXPECT_TRUE(shows(portError)) << refused.toStdString();
        EXPECT_NE(QString::number(store().settings().port), refused);
        type("Port", "65535");
        EXPECT_FALSE(shows(portError));
        EXPECT_EQ(store().settings().port, 65535);
        set([](Settings& s) { s.port = 8765; });
    }
    type("Port", "1");
    EXPECT_EQ(store().settings().port, 1);
    type("Port", "x-7.e");
    EXPECT_EQ(shown("Port"), "7") << "the field accepts only digits";
    type("Port", "0");
    refuse();
    EXPECT_EQ(shown("Port"), "0") << "the text stays while the field has the focus";
    find("Host")->setFocus();
    settle();
    EXPECT_EQ(shown("Port"), "8765") << "the stored port";
    EXPECT_FALSE(shows(portError));
}

TEST_F(SettingsTest, TrackingIsChosenWithItsNote) {
    const QString
        own = "Your cameras locate the visitor and Velmora steers the drone. Works with any supported "
              "drone.",
        native = "Velmora flies the drone to the visitor, then hands over to the drone's own tracking "
                 "and takes back control near the boundary. Experimental: not yet confirmed on the "
                 "Mini 4 Pro.";
    look();
    EXPECT_TRUE(shows(own));
    click("DJI tracking hand-over");
    EXPECT_EQ(store().settings().tracking, TrackingMode::native);
    EXPECT_TRUE(shows(native));
    EXPECT_FALSE(shows(own));
    press(Qt::Key_Left);
    EXPECT_EQ(store().settings().tracking, TrackingMode::own);
    EXPECT_TRUE(shows(own));
}

TEST_F(SettingsTest, StoresWhereAlertsGo) {
    look();
    QTest::mouseClick(find<QAbstractButton>("Alert on this computer"), Qt::LeftButton);
    EXPECT_FALSE(store().settings().notifyMac);
    EXPECT_EQ(find<QLineEdit>("Phone (ntfy topic)")->placeholderText(), "e.g. velmora-home");
    auto* topic = find<QLineEdit>("Phone (ntfy topic)");
    topic->setFocus();
    QTest::keyClicks(topic, " my/topic ");
    EXPECT_EQ(store().settings().ntfyTopic, " my/topic ");
    QTest::keyClick(topic, Qt::Key_Home);
    QTest::keyClicks(topic, "ab");
    EXPECT_EQ(store().settings().ntfyTopic, "ab my/topic ") << "the cursor keeps its position";
}

TEST_F(SettingsTest, TheSketchFollowsTheLimitsStepByStep) {
    look();
    auto* sketch = window().findChild<LimitsSketch*>();
    const auto says = [&](const QString& words) { return sketch->accessibleName() == words; };
    EXPECT_TRUE(says("15 m up, 15 m back, 5 m inside your boundary"));
    QImage last = sketch->grab().toImage();
    for (const auto& [limit, words] :
         {std::pair("Flight height", "16 m up, 15 m back, 5 m inside your boundary"),
          {"Follow distance", "16 m up, 16 m back, 5 m inside your boundary"},
          {"Stay this far inside", "16 m up, 16 m back, 6 m inside your boundary"}}) {
        QTest::keyClick(&slider(limit), Qt::Key_Right);
        EXPECT_TRUE(says(words)) << words;
        const QImage picture = sketch->grab().toImage();
        EXPECT_NE(picture.copy(0, 0, 150, 100), last.copy(0, 0, 150, 100)) << limit;
        last = picture;
    }
}

TEST_F(SettingsTest, TheSectionKeepsItsPlaceUnlessTheConnectionIsAskedFor) {
    look();
    auto* bar = window().findChild<SettingsView*>()->findChild<QScrollArea*>()->verticalScrollBar();
    bar->setValue(300);
    store().setSection(Section::overview);
    settle();
    store().setSection(Section::settings);
    settle();
    EXPECT_EQ(bar->value(), 300);
    store().setSection(Section::overview);
    store().openConnection();
    settle();
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(SettingsTest, TheLoginSwitchShowsWhatTheDesktopAccepted) {
    loginItem.on = true;
    look();
    auto* start = find<QAbstractButton>("Start Velmora when I log in");
    EXPECT_TRUE(start->isChecked());
    QTest::mouseClick(start, Qt::LeftButton);
    EXPECT_FALSE(loginItem.on || start->isChecked());
    loginItem.refuses = true;
    QTest::mouseClick(start, Qt::LeftButton);
    EXPECT_FALSE(loginItem.on || start->isChecked());
}

TEST_F(SettingsTest, ReopeningTheWelcomeKeepsTheOnboardedFlag) {
    look();
    const QByteArray file = content("settings.json");
    click("Show welcome again");
    EXPECT_TRUE(shows("Explore in demo mode"));
    EXPECT_TRUE(store().settings().onboarded);
    EXPECT_EQ(content("settings.json"), file);
}

} // namespace

} // namespace velmora
