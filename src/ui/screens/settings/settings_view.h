#pragma once

#include "desktop/autostart.h"
#include "store/app_store.h"

#include <QWidget>

#include <vector>

namespace velmora {

class ConnectionForm;
class Page;
class SegmentedChoice;
class SliderLine;
class Switch;
class Text;
class TextField;

/// Settings: where the state comes from, and the limits that the drone keeps. Every control stores at once.
class SettingsView : public QWidget {
    Q_OBJECT

public:
    SettingsView(AppStore& store, const Autostart& autostart, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// A limit and the line that shows it.
    struct Limit {
        double Settings::*field;
        SliderLine* line;
    };

    QWidget* buildForm();
    void addRow(const QString& label, QWidget* content, int lead);
    QWidget* block();
    void addLimit(QWidget* block, const QString& label, double Settings::*field, int lower, int upper,
                  const QString& unit);
    QWidget* buildConnection();
    QWidget* buildFlight();
    QWidget* buildBoundary();
    QWidget* buildComingHome();
    QWidget* buildTracking();
    QWidget* buildAlerts();
    QWidget* buildRules();
    QWidget* buildAbout();
    template <class Change>
    void change(Change change);
    void refresh();

    AppStore& store_;
    const Autostart& autostart_;
    QWidget* form_ = nullptr;
    std::vector<Limit> limits_;
    ConnectionForm* connection_ = nullptr;
    SegmentedChoice* tracking_ = nullptr;
    Text* trackingNote_ = nullptr;
    Switch* notify_ = nullptr;
    TextField* topic_ = nullptr;
    Switch* startAtLogin_ = nullptr;
    Page* page_;
};

} // namespace velmora
