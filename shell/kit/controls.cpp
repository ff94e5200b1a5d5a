#include "shell/kit/controls.h"

#include "shell/kit/choice_list.h"
#include "shell/kit/measure.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace shell {

namespace {

class LongHeading : public QLabel {
public:
    using QLabel::QLabel;

    QSize sizeHint() const override
    {
        return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(HairSpace, 0);
    }
};

} // namespace

QLabel* makeLabel(QWidget* parent, QAnyStringView name)
{
    auto* const label = makeControl<QLabel>(parent, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* makeLabel(QWidget* parent, QAnyStringView name, double type)
{
    QLabel* const label = makeLabel(parent, name);
    setType(*label, type);
    return label;
}

QLabel* makeHeading(QWidget* parent, QAnyStringView name, double type)
{
    QLabel* const label = makeLabel(parent, name);
    setBoldType(*label, type);
    return label;
}

QLabel* makeScore(QWidget* parent, QAnyStringView name)
{
    QLabel* const score = makeHeading(parent, name, HeadingType);
    score->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    keepMeasure(*score, "room", [score](Growth) {
        const QFontMetrics metrics = score->fontMetrics();
        score->setMargin(-metrics.horizontalAdvance(u' '));
        score->setMinimumSize(metrics.horizontalAdvance(QStringLiteral("100%")), metrics.lineSpacing());
    });
    return score;
}

QLabel* makeLongHeading(QWidget* parent, QAnyStringView name, double type)
{
    auto* const label = makeControl<LongHeading>(parent, name);
    label->setTextFormat(Qt::PlainText);
    setBoldType(*label, type);
    wrapText(*label, 1);
    return label;
}

QLabel* makeLabelOf(QWidget* control, QAnyStringView name)
{
    QLabel* const label = makeLabel(control->parentWidget(), name);
    label->setBuddy(control);
    return label;
}

void wrapText(QLabel& label, int lines)
{
    label.setWordWrap(true);
    keepMeasure(label, "lines", [&label, lines](Growth) {
        label.setMinimumSize(1, lines * label.fontMetrics().lineSpacing());
    });
}

ChoiceList* makeChoiceList(QWidget* parent, QAnyStringView name)
{
    auto* const list = makeControl<ChoiceList>(parent, name);
    setType(*list, ListType);
    return list;
}

QPushButton* makeButton(QWidget* parent, QAnyStringView name, std::string_view text)
{
    auto* const button = makeControl<QPushButton>(parent, name);
    button->setAutoDefault(true);
    button->setText(fromUtf8(text));
    return button;
}

QPushButton* makeQuestionButton(QWidget* parent, QAnyStringView name)
{
    QPushButton* const button = makeButton(parent, name, "?");
    button->setAccessibleName(QStringLiteral("Show the answer"));
    return button;
}

void setFocusInSight(QWidget& control)
{
    control.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    control.setFocus();
}

void onEnter(QWidget& control, const std::function<void()>& step)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const enter = new QShortcut(key, &control);
        enter->setAutoRepeat(false);
        enter->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(enter, &QShortcut::activated, &control, step);
    }
}

bool isEnter(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool hasSign(const QKeyEvent& key)
{
    return !key.text().isEmpty() && key.text().front().isPrint();
}

bool writes(const QKeyEvent& key)
{
    constexpr Qt::KeyboardModifiers thirdLevel = Qt::ControlModifier | Qt::AltModifier;
    const Qt::KeyboardModifiers command = key.modifiers() & (thirdLevel | Qt::MetaModifier);
    return (!command || command == thirdLevel) && hasSign(key);
}

} // namespace shell
