#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class AnswerGuard;
class ArmSwitch;
class Page;

/// Overview: a calm summary of the grounds.
class OverviewView : public QWidget {
    Q_OBJECT

public:
    OverviewView(AppStore& store, AnswerGuard& guard, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Content;

    void refresh();

    AppStore& store_;
    ArmSwitch* armSwitch_;
    Content* content_;
    Page* page_;
};

} // namespace velmora
