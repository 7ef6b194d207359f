#include "model/mission_evidence.h"
#include "ui/history_fixture.h"
#include "ui/look/words.h"
#include "ui/report/report_job.h"
#include "ui/report/report_paper.h"
#include "ui/report/report_progress.h"

#include <QProcess>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace velmora {

namespace {

/// What a program that reads documents prints; fails the test if it cannot be run.
QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " of Debian's poppler-utils is needed";
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

struct Word {
    int page = 0;
    QString text;
    QRectF rect; ///< points
};

/// A document as others read it.
struct Document {
    explicit Document(const QString& file)
        : text(outputOf(QStringLiteral("pdftotext"), {"-layout", file, "-"}).simplified()),
          properties(outputOf(QStringLiteral("pdfinfo"), {file})),
          metadata(outputOf(QStringLiteral("pdfinfo"), {"-meta", file})),
          fonts(outputOf(QStringLiteral("pdffonts"), {file}).split('\n', Qt::SkipEmptyParts).mid(2)) {
        const QRegularExpression page(QStringLiteral("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\">")),
            word(QStringLiteral("<word xMin=\"([0-9.-]+)\" yMin=\"([0-9.-]+)\" xMax=\"([0-9.-]+)\" "
                                "yMax=\"([0-9.-]+)\">(.*)</word>"));
        for (const QString& line : outputOf(QStringLiteral("pdftotext"), {"-bbox", file, "-"}).split('\n')) {
            if (const auto found = page.match(line); found.hasMatch()) {
                size = {found.captured(1).toDouble(), found.captured(2).toDouble()};
                ++pages;
            }
            if (const auto found = word.match(line); found.hasMatch())
                words.push_back(
                    {pages, found.captured(5),
                     QRectF(QPointF(found.captured(1).toDouble(), found.captured(2).toDouble()),
                            QPointF(found.captured(3).toDouble(), found.captured(4).toDouble()))});
        }
    }

    /// Words that reach over the margins, or lie on another word.
    QStringList misplaced() const {
        constexpr double margin = 36, touching = 1.5; // points
        const QRectF inside = QRectF(QPointF(), size).adjusted(margin, margin / 2, -margin, -margin / 3);
        QStringList found;
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (!inside.adjusted(-touching, 0, touching, 0).contains(words[i].rect))
                found.append(words[i].text);
            for (std::size_t j = i + 1; j < words.size() && words[j].page == words[i].page; ++j) {
                const QRectF both = words[i].rect & words[j].rect;
                if (both.width() > touching && both.height() > words[i].rect.height() / 2)
                    found.append(words[i].text + QStringLiteral(" on ") + words[j].text);
            }
        }
        return found;
    }

    QString text, properties, metadata;
    QStringList fonts;
    QSizeF size; ///< points
    int pages = 0;
    std::vector<Word> words;
};

} // namespace

class ReportTest : public HistoryTest {
protected:
    QString file() { return home.filePath("report.pdf"); }
    QByteArray bytes() {
        QFile report(file());
        return report.open(QIODevice::ReadOnly) ? report.readAll() : QByteArray();
    }
    ReportContent contentOf(const std::vector<MissionRecord>& records) {
        ReportContent content{
            "Visit report",
            {LiveState::initial().site, Settings(), dateFromSeconds(1'700'000'000), QPageSize(QPageSize::A4)},
            {},
            records.size() > 1,
            "Driveway"};
        for (const MissionRecord& record : records)
            content.visits.push_back({std::make_shared<MissionRecord>(record), answerOnRecord(record)});
        return content;
    }
    /// Returns the error text.
    QString write(ReportContent content) {
        auto* job = new ReportJob(std::make_unique<ExportFile>(file()), std::move(content), &parent_);
        std::optional<QString> error;
        QObject::connect(job, &ReportJob::finished, [&](const QString& text) { error = text; });
        job->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return error.has_value(); }, 60'000));
        return error.value_or("unfinished");
    }
    QString listFile() { return home.filePath("velmora-visits.pdf"); }
    /// Starts the report of the list.
    void exportList() {
        click("Export…");
        pick("Report of the list (PDF)…");
        auto* dialog = window().findChild<QFileDialog*>();
        ASSERT_NE(dialog, nullptr);
        dialog->selectFile(listFile());
        static_cast<QDialog*>(dialog)->accept();
        delete dialog;
    }
    /// A visit like those of the demo, with every step of the response.
    MissionRecord visit() {
        const auto& demo = store().history();
        return *std::ranges::find(demo, Outcome::visitorLeft, [](const HistoryEntry& entry) {
                    return entry.record->outcome;
                })->record;
    }
    /// Texts from a server that are as long and as strange as they may be.
    static MissionRecord hostile(MissionRecord record) {
        const QString word = QStringLiteral("<b>Kamera</b> & מצלמה كاميرا ");
        record.cameraName = word.repeated(8).left(200).toStdString();
        record.label = record.cameraName;
        record.id = std::string(300, 'M');
        record.snapshot = "no-such-picture";
        record.visitorPath.clear();
        record.notices.clear();
        for (int i = 0; i < 500; ++i)
            record.notices.push_back(
                {{},
                 record.start + Seconds{double(i)},
                 QStringLiteral("Notice <i>%1</i> %2").arg(i).arg(word.repeated(i % 6)).toStdString(),
                 Notice::Level::info});
        return record;
    }

private:
    QObject parent_;
};

TEST_F(ReportTest, AReportTellsAVisitInTextThatCanBeFound) {
    const MissionRecord record = visit();
    ASSERT_EQ(write(contentOf({record})), "");
    const Document document(file());
    const QStringList expected{shownText(rawValue(record.outcome)),
                               timeOfDay(record.start),
                               QStringLiteral("Record ") + toQString(record.id),
                               "How it was answered",
                               "The owner approved the launch",
                               "On its pad at " + timeOfDay(record.end),
                               "METRES INSIDE THE BOUNDARY",
                               "YOUR BOUNDARY",
                               "Coming home and landing",
                               "(UTC"};
    for (const QString& text : expected)
        EXPECT_TRUE(document.text.contains(text))
            << text.toStdString() << " in " << document.text.toStdString();
    for (const Notice& notice : record.notices)
        EXPECT_TRUE(document.text.contains(timeOfDay(notice.time))) << notice.text;
    EXPECT_THAT(document.misplaced(), testing::IsEmpty());
    EXPECT_TRUE(document.properties.contains("Visit report"));
    EXPECT_TRUE(document.metadata.contains("<dc:creator><rdf:Seq><rdf:li>Velmora<"));
    EXPECT_TRUE(document.metadata.contains("<rdf:li>en<"));
    EXPECT_GE(document.fonts.size(), 4);
    for (const QString& font : document.fonts)
        EXPECT_TRUE(font.startsWith("Inter") && font.contains(QRegularExpression("yes +(yes|no) +yes")))
            << font.toStdString() << ": embedded, and its letters known";
}

TEST_F(ReportTest, AVisitWithoutAFlightHasNoPartAboutIt) {
    MissionRecord record = visit();
    record.outcome = Outcome::expired;
    record.dronePath.clear();
    record.notices.resize(1);
    ASSERT_EQ(write(contentOf({record})), "");
    const Document document(file());
    EXPECT_EQ(document.pages, 1);
    EXPECT_TRUE(document.text.contains("Nobody answered the alert until it expired"));
    for (const char* part : {"The flight", "Boundary", "FURTHEST OUT", "BATTERY USED", "Dashed"})
        EXPECT_FALSE(document.text.contains(part)) << part;
    EXPECT_THAT(document.misplaced(), testing::IsEmpty());
}

TEST_F(ReportTest, LongAndStrangeTextsStayOnTheirPages) {
    ReportContent content = contentOf({hostile(visit())});
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        content.setting.paper = QPageSize(paper);
        ASSERT_EQ(write(content), "");
        const Document document(file());
        EXPECT_EQ(document.size.toSize(), QPageSize(paper).sizePoints());
        EXPECT_GT(document.pages, 10);
        for (int page = 1; page <= document.pages; ++page)
            EXPECT_TRUE(
                document.text.contains(QStringLiteral("Page %1 of %2").arg(page).arg(document.pages)));
        EXPECT_EQ(document.text.count("EVENT"), document.pages) << "each page repeats the head of the table";
        for (int i = 0; i < 500; ++i)
            EXPECT_TRUE(document.text.contains(QStringLiteral("Notice <i>%1").arg(i))) << i;
        EXPECT_THAT(document.misplaced(), testing::IsEmpty());
    }
}

TEST_F(ReportTest, AListHasACoverAndHoldsEachPictureOnce) {
    ASSERT_EQ(write(contentOf({visit()})), "");
    const auto one = bytes().size();
    ASSERT_EQ(write(contentOf(std::vector(40, visit()))), "");
    const Document document(file());
    EXPECT_TRUE(document.text.contains("40 visits"));
    EXPECT_TRUE(document.text.contains("When they came"));
    EXPECT_EQ(document.text.count("How it was answered"), 40);
    EXPECT_LT(bytes().size(), one + 41 * 60'000);
    EXPECT_THAT(document.misplaced(), testing::IsEmpty());
}

TEST_F(ReportTest, AReportThatIsCancelledOrFailsLeavesTheFileAsItWas) {
    ASSERT_EQ(write(contentOf({visit()})), "");
    const QByteArray before = bytes();
    const QStringList files = QDir(home.path()).entryList(QDir::Files);
    {
        QObject parent;
        auto* job =
            new ReportJob(std::make_unique<ExportFile>(file()), contentOf(std::vector(60, visit())), &parent);
        double done = 0;
        QObject::connect(job, &ReportJob::progressed, [&](double share) { done = share; });
        job->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return done > 0.3; }, 60'000));
    }
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), files);

    auto* job = new ReportJob(std::make_unique<ExportFile>(home.filePath("no/such/report.pdf")),
                              contentOf({visit()}), qApp);
    QString error;
    QObject::connect(job, &ReportJob::finished, [&](const QString& text) { error = text; });
    job->start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !error.isEmpty(); }));
    EXPECT_TRUE(error.startsWith(home.filePath("no/such/report.pdf")));
}

TEST_F(ReportTest, ThePaperIsThatOfTheDesktopsTerritory) {
    for (const char* letter : {"en_US", "es_MX", "fr_CA", "en_PH"})
        EXPECT_EQ(paperFor(QLocale(letter)).id(), QPageSize::Letter) << letter;
    for (const char* a4 : {"C", "en_GB", "de_DE", "fr_FR", "ja_JP"})
        EXPECT_EQ(paperFor(QLocale(a4)).id(), QPageSize::A4) << a4;
}

TEST_F(ReportTest, ALongReportCanBeCancelledAndGivesWayToAnAlert) {
    look(std::vector(60, visit()));
    auto& progress = *window().findChild<ReportProgress*>();
    exportList();
    EXPECT_TRUE(progress.isOpen());
    clock.advance(std::chrono::seconds(1));
    click("Cancel");
    EXPECT_FALSE(progress.isOpen());
    clock.advance(std::chrono::seconds(1));
    EXPECT_FALSE(QFile::exists(listFile()));

    exportList();
    EXPECT_TRUE(progress.isOpen());
    UiTest::visit(Scenario::driveway);
    EXPECT_FALSE(progress.isOpen()) << "it would cover the flight";
    EXPECT_FALSE(QFile::exists(listFile()));
    window().activateWindow();
    outwaitGuard();
    click("Launch drone");
    tickAfter(0.05);
    EXPECT_TRUE(airborne(store().phase()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(listFile()); }, 60'000));
}

} // namespace velmora
