#include "ui/blocks/headline.h"
#include "ui/blocks/sb_button.h"
#include "ui/look/art.h"
#include "ui/look/style.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QDirIterator>
#include <QFontInfo>
#include <QImage>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace velmora {

namespace {

const QString sentence = QStringLiteral("Someone you don't know is at the driveway camera.");
constexpr TextStyle spaced{SBFont::Face::semiBold, 20, 24, 12};

/// First and last painted column of a text drawn into a row of 200 pixels.
std::pair<int, int> inkOf(const QString& text, const TextStyle& style, Qt::Alignment alignment) {
    QImage picture(200, 40, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawText(painter, picture.rect(), text, style, SB::ink, alignment);
    int first = picture.width(), last = -1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qAlpha(picture.pixel(x, y)) > 60) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    return {first, last};
}

TEST(LookTest, OnlyMediumAndTheBoldWeightsHaveSeparateFaces) {
    using SBFont::Face;
    EXPECT_EQ(SBFont::faceFor(QFont::Medium), Face::medium);
    for (const QFont::Weight weight : {QFont::DemiBold, QFont::Bold})
        EXPECT_EQ(SBFont::faceFor(weight), Face::semiBold);
    for (const QFont::Weight weight :
         {QFont::Thin, QFont::Light, QFont::Normal, QFont::ExtraBold, QFont::Black})
        EXPECT_EQ(SBFont::faceFor(weight), Face::regular) << weight;
}

TEST(LookTest, EveryFaceIsTheBundledOne) {
    using SBFont::Face;
    std::set<double> widths;
    for (const Face face :
         {Face::regular, Face::medium, Face::semiBold, Face::displayMedium, Face::displaySemiBold}) {
        const QFont font = SBFont::font(face, 20);
        EXPECT_EQ(QFontInfo(font).family(), font.family());
        widths.insert(textWidth(sentence, {face, 20, 24}));
    }
    EXPECT_EQ(widths.size(), 5U);
}

TEST(LookTest, TabularStyleGivesOnlyDigitsAFixedWidth) {
    TextStyle plain{SBFont::Face::medium, 16, 24}, tabular = plain;
    tabular.tabular = true;
    EXPECT_EQ(textWidth("11:11", tabular), textWidth("00:00", tabular));
    EXPECT_LT(textWidth("11:11", plain), textWidth("00:00", plain));
    for (const char16_t* letters :
         {u"\u05D7\u05E6\u05E8 2", u"\u0645\u062F\u062E\u0644 1", u"AVA To \U0001F6AA"}) {
        const QString text = QString::fromUtf16(letters);
        EXPECT_EQ(textWidth(text, tabular), textWidth(text, plain)) << text.toStdString();
        EXPECT_EQ(inkOf(text, tabular, Qt::AlignLeft), inkOf(text, plain, Qt::AlignLeft));
    }
}

TEST(LookTest, TrackingAppliesOnlyBetweenLetters) {
    TextStyle plain = spaced;
    plain.tracking = 0;
    EXPECT_NEAR(textWidth("H", spaced), textWidth("H", plain), 0.01);
    EXPECT_NEAR(textWidth("HHH", spaced), textWidth("HHH", plain) + 24, 0.01);
    EXPECT_EQ(textWidth("", spaced), 0);
    EXPECT_GE(inkOf("HH", spaced, Qt::AlignRight).second, 195);
    const auto [left, right] = inkOf("HH", spaced, Qt::AlignHCenter);
    EXPECT_NEAR(left, 199 - right, 1);
}

TEST(LookTest, ChangingDigitsKeepsTheWidth) {
    for (const TextStyle& style : {Type::metric, Type::telemetry, Type::sliderValue, Type::logTime}) {
        for (const QChar digit : QStringLiteral("123456789"))
            EXPECT_DOUBLE_EQ(textWidth(QString(4, digit), style), textWidth("0000", style));
        TextStyle proportional = style;
        proportional.tabular = false;
        EXPECT_LT(textWidth("1111", proportional), textWidth("0000", proportional));
    }
    EXPECT_EQ(inkOf("1H", Type::telemetry, Qt::AlignLeft).second,
              inkOf("8H", Type::telemetry, Qt::AlignLeft).second);
}

TEST(LookTest, TooLongTextEndsInAnEllipsisInsideItsWidth) {
    for (const TextStyle& style : {Type::body, Type::caption, Type::metric, spaced})
        for (const double width : {40.0, 90.0, 160.0}) {
            const QString cut = elided(sentence, style, width);
            EXPECT_TRUE(cut.endsWith(QChar(0x2026)));
            EXPECT_TRUE(sentence.startsWith(cut.chopped(1), Qt::CaseInsensitive));
            EXPECT_LE(textWidth(cut, style), width + 0.5);
        }
    EXPECT_EQ(elided("Pad", Type::body, textWidth("Pad", Type::body)), "Pad");
    EXPECT_EQ(elided("Pad", Type::caption, 200), "PAD");
}

TEST(LookTest, LinesBreakBetweenWordsAndLoseNothing) {
    const QStringList lines = brokenIntoLines(sentence, Type::body, 120);
    EXPECT_EQ(lines.join(' '), sentence);
    ASSERT_GT(lines.size(), 2);
    for (const QString& line : lines)
        EXPECT_LE(textWidth(line, Type::body), 120.5) << line.toStdString();
    const QStringList two = brokenIntoLines(sentence, Type::body, 120, 2);
    ASSERT_EQ(two.size(), 2);
    EXPECT_EQ(two[0], lines[0]);
    EXPECT_TRUE(two[1].endsWith(QChar(0x2026)));
    EXPECT_EQ(brokenIntoLines(sentence, Type::body, 120, static_cast<int>(lines.size())), lines);
}

TEST(LookTest, AHeadlineBreaksToItsWidthAndKeepsItsTailWithTheLastWord) {
    const Headline headline({"All quiet ", "at home", "."}, Type::headline, false, nullptr);
    EXPECT_EQ(headline.accessibleName(), "All quiet at home.");
    const int fullWidth = static_cast<int>(textWidth("All quiet at home.", Type::headline));
    EXPECT_EQ(headline.heightForWidth(fullWidth + 2), 44);
    EXPECT_EQ(headline.heightForWidth(fullWidth - 4), 88);
    const Headline broken({"Every visit,\n", "on record", "."}, Type::headline, false, nullptr);
    EXPECT_EQ(broken.heightForWidth(2000), 88);
    EXPECT_EQ(broken.accessibleName(), "Every visit, on record.");
}

TEST(LookTest, ArtIsFoundByNameAndNeverOutsideItsFolder) {
    for (const char* name :
         {"plan-base", "snapshot-driveway", "snapshot-front", "snapshot-garden", "drone-render"})
        EXPECT_FALSE(Art::find(name).isNull()) << name;
    for (const char* name : {"", "nothing", "../art/plan-base", ".plan-base", "/etc/passwd"})
        EXPECT_TRUE(Art::find(name).isNull()) << name;
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor painted(QColor over, const QColor& under) {
    const double share = over.alphaF();
    over.setAlphaF(1);
    return SB::mixed(under, over, share);
}

/// Contrast ratio by WCAG 2, of a colour that may be translucent.
double contrast(const QColor& front, const QColor& behind) {
    const auto [dark, light] = std::minmax({luminance(painted(front, behind)), luminance(behind)});
    return (light + 0.05) / (dark + 0.05);
}

constexpr double ofTexts = 4.5, ofEdges = 3; // least contrast

TEST(LookTest, TextsAndEdgesOfControlsStandOutFromWhatIsBehindThem) {
    const QColor hoveredRow = painted(SB::faded(SB::rule2, 0.5), SB::panel);
    const QColor placeholder = Style::lightPalette().color(QPalette::PlaceholderText);
    const QColor chip = painted(SB::faded(SB::navy, 0.72), Qt::white);
    const QColor warning = painted(SB::faded(SB::alert, 0.05), SB::page);
    const struct {
        QColor behind;
        std::vector<QColor> texts, edges;
    } surfaces[] = {
        {SB::page,
         {SB::ink, SB::body, SB::muted, SB::teal, SB::blue, SB::purple, SB::alert, SB::caution, placeholder},
         {SB::edge, SB::teal, SB::blue, SB::alert}},
        {SB::panel, {SB::ink, SB::body, SB::muted, SB::teal, SB::blue, SB::caution}, {SB::edge, SB::blue}},
        {hoveredRow, {SB::ink, SB::muted}, {}},
        {warning, {SB::ink, SB::body, SB::alert, SB::blue}, {}},
        {SB::rule2, {SB::ink}, {SB::muted}},
        {SB::ink, {SB::page}, {}},
        {SB::caution, {SB::page}, {}},
        {SB::alert, {SB::page}, {}},
        {chip, {SB::dTitle}, {}},
        {SB::navy,
         {SB::dTitle, SB::dBody, SB::dLabel, SB::dTeal, SB::lilac, SB::softBlue, SB::faded(SB::dLabel, 0.75)},
         {SB::softBlue}}};
    for (const auto& [behind, texts, edges] : surfaces) {
        for (const QColor& text : texts)
            EXPECT_GE(contrast(text, behind), ofTexts)
                << text.name().toStdString() << " on " << behind.name().toStdString();
        for (const QColor& edge : edges)
            EXPECT_GE(contrast(edge, behind), ofEdges)
                << edge.name().toStdString() << " on " << behind.name().toStdString();
    }
}

TEST(LookTest, ButtonsThatCanBePressedStandOut) {
    using State = SBButton::State;
    for (const auto kind : {SBButtonKind::primary, SBButtonKind::secondary, SBButtonKind::quiet,
                            SBButtonKind::danger, SBButtonKind::onDark})
        for (const State state : {State::normal, State::hover, State::pressed}) {
            const QColor behind = kind == SBButtonKind::onDark ? SB::navy : SB::page;
            const SBButtonColors colors = SBButton::colorsOf(kind, state);
            const QColor fill = painted(colors.fill, behind);
            EXPECT_GE(contrast(colors.text, fill), ofTexts) << int(kind) << ' ' << int(state);
            const QColor edge = colors.border.alpha() > 0 ? colors.border : fill;
            EXPECT_TRUE(kind == SBButtonKind::quiet || contrast(edge, behind) >= ofEdges)
                << int(kind) << ' ' << int(state);
        }
}

/// Colours and fonts are defined only in ui/look.
TEST(LookTest, ScreensWindowAndBlocksDefineNoColoursOrFonts) {
    const QRegularExpression made(
        R"(QColor(\s+\w+)?\s*[({]\s*["0-9]|QColor::from|"#[0-9A-Fa-f]{3,8}"|qRgb|)"
        R"(Qt::(white|black|red|green|blue|cyan|magenta|yellow|(dark|light)?gray)\b|)"
        R"(QFont(\s+\w+)?\s*[({]|QFont\s+\w+;|setPointSize|setPixelSize|setFontFamil)");
    int read = 0;
    for (const char* folder : {"screens", "window", "blocks"}) {
        QDirIterator files(QStringLiteral(VELMORA_SOURCES "/ui/") + folder, {"*.h", "*.cpp"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            ++read;
            const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
            for (const QString& line : lines)
                EXPECT_FALSE(line.contains(made))
                    << file.fileName().toStdString() << ": " << line.toStdString();
        }
    }
    EXPECT_GT(read, 100);
}

} // namespace

} // namespace velmora
