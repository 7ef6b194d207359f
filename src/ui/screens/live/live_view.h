#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class Page;

/// Live flight: where the owner watches and steers a flight.
class LiveView : public QWidget {
    Q_OBJECT

public:
    LiveView(AppStore& store, QWidget* parent);

signals:
    /// "Land now" was pressed; nothing is sent before the owner confirms.
    void landRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Content;

    void refresh();

    AppStore& store_;
    Content* content_;
    Page* page_;
};

} // namespace velmora
