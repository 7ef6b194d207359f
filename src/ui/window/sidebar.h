#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <map>

class QVBoxLayout;

namespace velmora {

class DroneBadge;
class LinkBadge;
class SectionRow;

/// The sidebar: the five sections, and the status of drone and link in the footer.
class Sidebar : public QWidget {
    Q_OBJECT

public:
    Sidebar(AppStore& store, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addSections();
    QVBoxLayout* buildFooter();
    void showSection();
    void showFlight();

    AppStore& store_;
    std::map<Section, SectionRow*> rows_;
};

} // namespace velmora
