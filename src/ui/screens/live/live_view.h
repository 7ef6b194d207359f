#pragma once

#include "ui/screens/screen.h"

namespace velmora {

/// Live flight: where the owner watches and steers a flight.
class LiveView : public Screen {
    Q_OBJECT

public:
    LiveView(AppStore& store, QWidget* parent);

signals:
    /// "Land now" was pressed; nothing is sent before the owner confirms.
    void landRequested();

protected:
    void refresh() override;

private:
    class Content;

    Content* content_;
};

} // namespace velmora
