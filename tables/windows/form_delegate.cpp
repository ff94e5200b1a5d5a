#include "tables/windows/form_delegate.h"

#include "shell/kit/type.h"
#include "tables/windows/page_model.h"

#include <QApplication>
#include <QPainter>

#include <vector>

namespace tables {

namespace {

constexpr double SicType = 0.7;
constexpr int SpaceBeside = 4;

// A piece of a form from left to right: its text, its font, and how far above the line it stands.
struct Piece {
    QString text;
    QFont font;
    int raised;

    int width() const { return QFontMetrics(font).horizontalAdvance(text); }
};

std::vector<Piece> piecesOf(const QModelIndex& index, const QFont& font)
{
    const QString form = index.data().toString();
    QFont bold = font;
    bold.setBold(true);
    if (index.data(PageModel::HeadingRole).toBool())
        return {{form, bold, 0}};
    const QString ending = index.data(PageModel::EndingRole).toString();
    std::vector<Piece> pieces{{form.chopped(ending.size()), font, 0}, {ending, bold, 0}};
    if (index.data(PageModel::SicRole).toBool()) {
        QFont small = shell::timesAsLarge(font, SicType);
        small.setItalic(true);
        pieces.push_back({QStringLiteral(" sic"), small, QFontMetrics(font).ascent() / 3});
    }
    return pieces;
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

} // namespace

void FormDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    ground.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, ground.widget);

    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(
        option.palette.color(groupOf(option), chosen ? QPalette::HighlightedText : QPalette::Text));
    const QFontMetrics metrics(option.font);
    const int line = option.rect.top() + (option.rect.height() - metrics.height() + 1) / 2 + metrics.ascent();
    // A heading stays in sight where the table is scrolled to the side.
    const bool isHeading = index.data(PageModel::HeadingRole).toBool();
    int x = (isHeading ? std::max(option.rect.left(), 0) : option.rect.left()) + SpaceBeside;
    for (const Piece& piece : piecesOf(index, option.font)) {
        painter->setFont(piece.font);
        painter->drawText(x, line - piece.raised, piece.text);
        x += piece.width();
    }
    painter->restore();
}

QSize FormDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    int width = 2 * SpaceBeside;
    // A heading has the room of all columns.
    if (!index.data(PageModel::HeadingRole).toBool())
        for (const Piece& piece : piecesOf(index, option.font))
            width += piece.width();
    return {width, QFontMetrics(option.font).height() + shell::HairSpace};
}

} // namespace tables
