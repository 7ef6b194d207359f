#include "ui/report/report_progress.h"

#include "language/language.h"
#include "ui/blocks/accessibility.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/report/report_job.h"

namespace velmora {

namespace {

constexpr int barRow = 22, barHeight = 6; // pixels; the bar is at the row's lower edge

} // namespace

class ReportProgress::Bar : public QWidget {
public:
    explicit Bar(QWidget* parent) : QWidget(parent) {
        setFixedHeight(barRow);
        declareRole(this, QAccessible::ProgressBar);
    }

    void setPercent(int percent) {
        percent_ = percent;
        setAccessibleName(Words::tr("%1 % done").arg(percent));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        constexpr double radius = barHeight / 2.0;
        const QRectF all(0, height() - barHeight, width(), barHeight);
        fillRounded(painter, all, radius, SB::rule2);
        QRectF done = all;
        done.setWidth(std::max<double>(all.width() * percent_ / 100, barHeight));
        fillRounded(painter, done, radius, SB::gradientLight(0, width()));
    }

private:
    int percent_ = 0;
};

ReportProgress::ReportProgress(QWidget* window)
    : ConfirmationCard({tr("Making the report"), {}, tr("Cancel"), {}}, window), bar_(new Bar(card())) {
    addBelowBody(bar_);
    connect(this, &OverlayCard::openChanged, this, [this] {
        if (!isOpen())
            delete job_;
    });
}

void ReportProgress::follow(ReportJob& job) {
    job_ = &job;
    percent_ = -1;
    const QString visits = displayLocale().toString(static_cast<int>(job.visits()));
    setBody(tr("%1 visits go into the report. The file is complete when all is done.").arg(visits));
    showDone(0);
    connect(&job, &ReportJob::progressed, this, &ReportProgress::showDone);
    connect(&job, &ReportJob::finished, this, &ReportProgress::detach);
    open();
}

void ReportProgress::detach() {
    if (job_)
        job_->disconnect(this);
    job_.clear();
    close();
}

void ReportProgress::showDone(double done) {
    const int percent = static_cast<int>(done * 100);
    if (percent == percent_)
        return;
    percent_ = percent;
    bar_->setPercent(percent);
}

} // namespace velmora
