#include "ui/blocks/headline.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <cmath>

namespace velmora {

namespace {

/// Whether a line may end after the character.
bool breaksAfter(QChar character) {
    constexpr char16_t noBreak = 0xa0, narrowNoBreak = 0x202f;
    return character.isSpace() && character != noBreak && character != narrowNoBreak;
}

/// Splits after each space or line break, so that the widths of the words add up to the width of the text.
QStringList wordsOf(const QString& text) {
    QStringList words;
    QString word;
    for (const QChar character : text) {
        word += character;
        if (breaksAfter(character)) {
            words.append(word);
            word.clear();
        }
    }
    if (!word.isEmpty())
        words.append(word);
    return words;
}

} // namespace

Sentence Sentence::marked(const QString& text) {
    const QStringList runs = text.split('*');
    return {runs.value(0), runs.value(1), runs.value(2)};
}

Headline::Headline(const Sentence& sentence, const TextStyle& style, bool dark, QWidget* parent)
    : QWidget(parent), sentence_(sentence), style_(style), dark_(dark) {
    declareRole(this, QAccessible::Heading);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    describe();
}

void Headline::setSentence(const Sentence& sentence) {
    if (sentence == sentence_)
        return;
    sentence_ = sentence;
    describe();
    updateGeometry();
    update();
}

void Headline::setStyle(const TextStyle& style) {
    if (style == style_)
        return;
    style_ = style;
    updateGeometry();
    update();
}

void Headline::describe() {
    setAccessibleName(QString(sentence_.lead + sentence_.emphasis + sentence_.tail).replace('\n', ' '));
}

QSize Headline::sizeHint() const {
    const double width = textWidth(accessibleName(), style_);
    return {static_cast<int>(std::ceil(width)) + 1, static_cast<int>(style_.line)};
}

QSize Headline::minimumSizeHint() const {
    return {0, static_cast<int>(style_.line)};
}

int Headline::heightForWidth(int width) const {
    const auto shown = pieces(width);
    const int lines = shown.empty() ? 1 : shown.back().line + 1;
    return static_cast<int>(lines * style_.line);
}

/// The words of all three runs. Words without a space between them stay on one line, such as a word and the
/// full stop after it.
std::vector<Headline::Piece> Headline::words() const {
    std::vector<Piece> all;
    for (const auto& [text, emphasised] :
         {std::pair(sentence_.lead, false), std::pair(sentence_.emphasis, true),
          std::pair(sentence_.tail, false)})
        for (const QString& word : wordsOf(text))
            all.push_back({word, emphasised});
    return all;
}

/// The emphasis goes to the next line as a whole if it fits there.
std::vector<Headline::Piece> Headline::pieces(double width) const {
    const std::vector<Piece> all = words();
    /// Width from this word to the next end of a line, which is not in the emphasis if that is `whole`.
    const auto unbroken = [&](std::size_t from, bool whole) {
        double sum = 0;
        for (std::size_t i = from; i < all.size(); ++i) {
            const bool inside = whole && i + 1 < all.size() && all[i + 1].emphasised;
            if (breaksAfter(all[i].text.back()) && !inside)
                return sum + advanceOf(all[i].text.trimmed(), style_);
            sum += advanceOf(all[i].text, style_);
        }
        return sum;
    };
    std::vector<Piece> shown;
    double x = 0;
    int line = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool begins = all[i].emphasised && (i == 0 || !all[i - 1].emphasised);
        const double whole = begins ? unbroken(i, true) : 0;
        const double together = begins && whole <= width ? whole : unbroken(i, false);
        if (x > 0 && breaksAfter(all[i - 1].text.back()) && x + together > width) {
            x = 0;
            ++line;
        }
        if (shown.empty() || shown.back().emphasised != all[i].emphasised || shown.back().line != line)
            shown.push_back({{}, all[i].emphasised, x, line});
        shown.back().text += all[i].text;
        x += advanceOf(all[i].text, style_);
        if (all[i].text.endsWith('\n')) {
            shown.back().text.chop(1);
            x = 0;
            ++line;
        }
    }
    return shown;
}

void Headline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (const Piece& piece : pieces(width())) {
        QBrush brush(dark_ ? SB::dTitle : SB::ink);
        if (piece.emphasised) {
            const double end = piece.x + advanceOf(piece.text.trimmed(), style_);
            brush = dark_ ? SB::gradientDark(piece.x, end) : SB::gradientLight(piece.x, end);
        }
        const double baseline = std::round(piece.line * style_.line + baselineOf(style_));
        drawRun(painter, {piece.x, baseline}, piece.text, style_, brush);
    }
}

} // namespace velmora
