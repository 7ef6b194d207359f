#pragma once

#include "ui/screens/screen.h"

#include <vector>

namespace velmora {

class ConnectionForm;
class LimitsSketch;
class SegmentedChoice;
class SliderLine;
class Switch;
class Text;
class TextField;

/// Settings: the connection, the limits of the drone and the alerts. Every control stores its change at once.
class SettingsView : public Screen {
    Q_OBJECT

public:
    SettingsView(AppStore& store, QWidget* parent);
    ~SettingsView() override;

protected:
    void refresh() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A setting and the slider that edits it.
    struct Limit {
        double Settings::*field;
        SliderLine* line;
    };

    QWidget* buildContent();
    void buildForm();
    QWidget* addRow(const QString& label, QWidget* content, int lead);
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
    template <class Edit>
    void change(Edit edit);
    void placeSketch();
    void showLimits();
    void followFocus(const QWidget* focused);

    QWidget* form_ = nullptr;
    QWidget* flight_ = nullptr; ///< the row with the first limit
    LimitsSketch* sketch_ = nullptr;
    std::vector<Limit> limits_;
    ConnectionForm* connection_ = nullptr;
    SegmentedChoice* tracking_ = nullptr;
    Text* trackingNote_ = nullptr;
    Switch* notify_ = nullptr;
    TextField* topic_ = nullptr;
    Switch* startAtLogin_ = nullptr;
};

} // namespace velmora
