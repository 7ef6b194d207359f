#pragma once

#include "ui/blocks/headline.h"

#include <optional>

namespace velmora {

class ScrollArea;
class Text;

/// The frame of a section's screen: eyebrow, headline, optional lede, something beside the heading, then the
/// content. It scrolls where the window is too low for it.
class Page : public QWidget {
    Q_OBJECT

public:
    /// What a page is made with; `trailing` may be null.
    struct Parts {
        QString eyebrow;
        Sentence headline;
        std::optional<QString> lede = std::nullopt;
        int ledeWidth = 0;  ///< at most, pixels; 0 for the usual
        bool fills = false; ///< the content takes the whole height, where there is enough
        int width = 0;      ///< of heading and content at most, pixels; 0 for the usual
        int contentGap = 0; ///< between heading and content, pixels
        QWidget* trailing = nullptr;
        QWidget* content = nullptr;
    };

    Page(const Parts& parts, QWidget* parent);

    void showTop();
    void setHeadline(const Sentence& headline);
    void setLede(const QString& lede);

private:
    QWidget* buildHeading(const Parts& parts);

    Headline* headline_;
    ScrollArea* area_;
    Text* lede_ = nullptr;
};

} // namespace velmora
