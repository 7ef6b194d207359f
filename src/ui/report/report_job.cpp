#include "ui/report/report_job.h"

#include "language/language.h"
#include "ui/report/report_paper.h"

#include <QElapsedTimer>

namespace velmora {

namespace {

constexpr qint64 longestStep = 10; // milliseconds, plus one visit

/// The document's title, author and language. QPdfWriter itself writes title and creator only.
QByteArray xmpOf(const QString& title) {
    constexpr const char* form =
        "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
        " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">\n"
        "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>\n"
        "<dc:creator><rdf:Seq><rdf:li>Velmora</rdf:li></rdf:Seq></dc:creator>\n"
        "<dc:language><rdf:Bag><rdf:li>%2</rdf:li></rdf:Bag></dc:language>\n"
        "<xmp:CreatorTool>Velmora %3</xmp:CreatorTool>\n"
        "</rdf:Description>\n"
        "</rdf:RDF>\n"
        "</x:xmpmeta>\n"
        "<?xpacket end=\"w\"?>";
    return QString::fromUtf8(form)
        .arg(title.toHtmlEscaped(), displayLocale().bcp47Name(), QCoreApplication::applicationVersion())
        .toUtf8();
}

/// Calls `once` until it returns false or the time of a step is over. Returns whether there is more to do.
template <class Once>
bool forOneStep(Once once) {
    QElapsedTimer timer;
    timer.start();
    while (once())
        if (timer.hasExpired(longestStep))
            return true;
    return false;
}

} // namespace

ReportJob::ReportJob(std::unique_ptr<ExportFile> file, ReportContent content, QObject* parent)
    : QObject(parent),
      file_(std::move(file)),
      content_(std::move(content)),
      cover_(content_.setting.site),
      pdf_(&file_->device()),
      counted_(content_.setting.paper) {
    pdf_.setResolution(reportDpi);
    pdf_.setPageSize(content_.setting.paper);
    pdf_.setPageMargins({});
    pdf_.setTitle(content_.title);
    pdf_.setCreator(QStringLiteral("Velmora %1").arg(QCoreApplication::applicationVersion()));
    pdf_.setDocumentXmpMetadata(xmpOf(content_.title));
    connect(&steps_, &QTimer::timeout, this, &ReportJob::step);
}

ReportJob::~ReportJob() = default;

void ReportJob::start() {
    steps_.start(0);
}

void ReportJob::step() {
    if (file_->hasFailed()) {
        finish();
        return;
    }
    const bool more = work();
    emit progressed(shareDone());
    if (more)
        return;
    if (stage_ == Stage::visits) {
        finish();
        return;
    }
    stage_ = static_cast<Stage>(static_cast<int>(stage_) + 1);
    next_ = 0;
}

/// Returns whether the stage has more to do.
bool ReportJob::work() {
    switch (stage_) {
    case Stage::counting:
        return forOneStep([this] { return countMore(); });
    case Stage::grounds:
        pictures_.grounds(reportScene(content_.setting, false), reportMapSize(content_.setting.site));
        return false;
    case Stage::map:
        if (content_.hasCover)
            cover_.prepare(content_.setting);
        return false;
    case Stage::cover:
        layOutCover(counted_);
        drawn_.emplace(content_.setting.paper, pdf_, counted_.count());
        layOutCover(*drawn_);
        return false;
    case Stage::visits:
        break;
    }
    return forOneStep([this] { return drawMore(); });
}

double ReportJob::shareDone() const {
    constexpr double counting = 0.1;
    const auto all = static_cast<double>(content_.visits.size());
    const double visits = all > 0 ? static_cast<double>(next_) / all : 1;
    return stage_ == Stage::counting ? counting * visits
           : stage_ == Stage::visits ? counting + (1 - counting) * visits
                                     : counting;
}

/// Counts the pages of one visit. Returns whether there are more visits.
bool ReportJob::countMore() {
    if (content_.hasCover && next_ < content_.visits.size())
        cover_.add(*content_.visits[next_].record);
    layOutNext(counted_);
    return next_ < content_.visits.size();
}

bool ReportJob::drawMore() {
    layOutNext(*drawn_);
    return next_ < content_.visits.size();
}

void ReportJob::layOutNext(ReportPages& pages) {
    if (next_ < content_.visits.size())
        layOutVisit(pages, pictures_, content_.setting, content_.visits[next_++]);
}

void ReportJob::layOutCover(ReportPages& pages) const {
    if (content_.hasCover)
        cover_.layOut(pages, content_.setting, content_.selection);
}

void ReportJob::finish() {
    steps_.stop();
    if (drawn_)
        drawn_->end();
    emit finished(file_->finish());
    deleteLater();
}

} // namespace velmora
