#pragma once

#include "ui/blocks/confirmation_card.h"

#include <QPointer>

namespace velmora {

class ReportJob;

/// Shows how far a long report is, and offers to cancel it.
class ReportProgress : public ConfirmationCard {
    Q_OBJECT

public:
    explicit ReportProgress(QWidget* window);

    /// Opens the card until the job is done. Closing the card before cancels the job.
    void follow(ReportJob& job);
    /// Closes the card; the job goes on.
    void detach();

private:
    class Bar;

    void showDone(double done);

    Bar* bar_;
    QPointer<ReportJob> job_;
    int percent_ = 0;
};

} // namespace velmora
