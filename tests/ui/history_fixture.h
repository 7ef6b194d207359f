#pragma once

#include "ui/linked_ui_fixture.h"

#include <QFileDialog>
#include <QHelpEvent>
#include <QListView>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QToolTip>

namespace velmora {

/// The history screen with records that the test creates.
class HistoryTest : public LinkedUiTest {
protected:
    /// Opens the history with these records, newest first.
    void look(const std::vector<MissionRecord>& history) {
        records(history);
        store().setSection(Section::history);
        window();
    }
    MissionRecord visitAt(const std::string& camera, const std::string& id, Outcome outcome, bool demo) {
        MissionRecord made = record(id, outcome, 60.0 * ++made_);
        made.cameraName = camera;
        made.demo = demo;
        return made;
    }
    /// Two flown visits and two that were not, at three cameras; two are demo visits.
    std::vector<MissionRecord> four() {
        return {visitAt("Driveway", "M-1", Outcome::visitorLeft, true),
                visitAt("Garden", "M-2", Outcome::ignored, true),
                visitAt("Front", "M-3", Outcome::lowBattery, false),
                visitAt("Garden", "M-4", Outcome::expired, false)};
    }
    /// A visit of ten seconds: the visitor is seen in the first two, the drone flies in the last four.
    MissionRecord flight() {
        MissionRecord made = visitAt("Driveway", "M-1", Outcome::lowBattery, false);
        made.visitorPath.assign(5, {20, 20});
        made.dronePath.assign(9, {40, 40});
        made.maxDistanceFromPad = 41.5;
        made.batteryUsed = 8.25;
        made.confidence = 0.875;
        made.notices = {
            {{}, made.start + Seconds{3}, "You approved the launch", Notice::Level::good},
            {{}, made.start + Seconds{7}, "Battery below 30% — coming home", Notice::Level::caution}};
        return made;
    }

    /// So many visits that the list scrolls, a minute apart.
    std::vector<MissionRecord> many() {
        std::vector<MissionRecord> made;
        while (made.size() < 200)
            made.push_back(visitAt("Driveway", "M-1", Outcome::expired, false));
        return made;
    }
    void resize(QSize size) {
        window().resize(size);
        settle();
    }

    QListView& list() { return *window().findChild<QListView*>(); }
    QModelIndex rowOf(const QString& text) {
        for (int row = 0; row < list().model()->rowCount(); ++row)
            if (const auto index = list().model()->index(row, 0); index.data().toString().startsWith(text))
                return index;
        return {};
    }
    /// Whether the list shows this count and, for each text in `rows`, a row that begins with it.
    bool lists(const QString& count, const QStringList& rows) {
        return shows(count) &&
               std::ranges::all_of(rows, [&](const QString& row) { return rowOf(row).isValid(); });
    }
    /// The tooltip of a row that is in view.
    QString toolTip(const QModelIndex& row) {
        const QPoint at = list().visualRect(row).center();
        QHelpEvent event(QEvent::ToolTip, at, list().viewport()->mapToGlobal(at));
        QApplication::sendEvent(list().viewport(), &event);
        return QToolTip::text();
    }
    /// Ids of the store's records; expects the same records in the file.
    std::vector<std::string> onFile() {
        std::vector<std::string> ids;
        const auto file = decode<std::vector<MissionRecord>>(content("history.json").toStdString());
        EXPECT_EQ(file.value, recorded());
        for (const MissionRecord& one : recorded())
            ids.push_back(one.id);
        return ids;
    }
    void choose(const QString& outcome) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(rowOf(outcome)).center());
        settle();
    }
    /// Clicks an entry of the open menu.
    void pick(const QString& text) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text() == text) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                settle();
                return;
            }
        FAIL() << text.toStdString();
    }
    void search(const QString& text) {
        press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
        settle();
    }
    /// Exports with this menu entry to `folder`, or to the home folder if empty, and returns the file's
    /// bytes.
    QByteArray exported(const QString& entry, const QString& proposed, const QString& folder = {}) {
        click("Export…");
        pick(entry);
        auto* dialog = window().findChild<QFileDialog*>();
        if (!dialog)
            return {};
        EXPECT_EQ(QFileInfo(dialog->selectedFiles().value(0)).fileName(), proposed);
        EXPECT_EQ(dialog->defaultSuffix(), QFileInfo(proposed).suffix());
        const QString name = folder.isEmpty() ? home.filePath(proposed) : folder + proposed;
        dialog->selectFile(name);
        static_cast<QDialog*>(dialog)->accept();
        delete dialog;
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The scroll area of the record's details.
    QScrollArea& detail() {
        for (auto* area : window().findChildren<QScrollArea*>())
            if (area->isAncestorOf(&slider()))
                return *area;
        qFatal("No details are shown.");
    }
    /// The row of the log with this text.
    QWidget& notice(const QString& text) {
        for (auto* row : window().findChildren<QWidget*>())
            if (row->isVisible() && row->accessibleName().endsWith(' ' + text))
                return *row;
        qFatal("No such notice is shown.");
    }
    QAbstractSlider& slider() { return *find<QAbstractSlider>("Replay time"); }

private:
    int made_ = 0;
};

} // namespace velmora
