#pragma once

#include <QHeaderView>

namespace progress {

/// The headings of a table's columns, each broken into lines where its column is narrower than the heading.
class WrappingHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit WrappingHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
    {
        setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
    }

protected:
    QSize sectionSizeFromContents(int section) const override
    {
        const QSize inOneLine = QHeaderView::sectionSizeFromContents(section);
        const QString text = model()->headerData(section, Qt::Horizontal).toString();
        const int room = fontMetrics().horizontalAdvance(text) + sectionSize(section) - inOneLine.width();
        const int height =
            fontMetrics().boundingRect(0, 0, room, 0, Qt::AlignLeft | Qt::TextWordWrap, text).height();
        return inOneLine.grownBy({0, 0, 0, std::max(0, height - fontMetrics().height())});
    }
};

} // namespace progress
