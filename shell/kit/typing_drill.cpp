#include "shell/kit/typing_drill.h"

#include "shell/kit/answer_box.h"
#include "shell/kit/content_area.h"
#include "shell/kit/controls.h"
#include "shell/kit/measure.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/kit/typed_ahead.h"
#include "shell/macrons.h"
#include "shell/pause.h"

#include <QAccessible>
#include <QLabel>
#include <QTextDocumentFragment>

#include <array>

namespace shell {

namespace {

constexpr int LinesOfWhy = 2;

struct FaultTexts {
    FaultKind kind;
    LanguageTexts texts;
};

// clang-format off
constexpr std::array Faults = {
    //                                     English                                                French                                                  Italian                                                German                                                      Spanish                                                Latin
    FaultTexts{FaultKind::Capital,        {"Only a capital letter differs.",                      "Seule une majuscule diffère.",                         "Solo una maiuscola è diversa.",                       "Nur die Groß- oder Kleinschreibung ist anders.",           "Solo difiere una mayúscula.",                         "Sola littera maiuscula differt."}},
    FaultTexts{FaultKind::BlankTooMany,   {"There is a blank too many.",                          "Il y a une espace de trop.",                           "C'è uno spazio di troppo.",                           "Ein Leerzeichen ist zu viel.",                             "Sobra un espacio.",                                   "Spatium supervacaneum est."}},
    FaultTexts{FaultKind::GendersMissing, {"The endings of the other genders are missing.",       "Il manque les terminaisons des autres genres.",        "Mancano le desinenze degli altri generi.",            "Die Endungen der anderen Geschlechter fehlen.",            "Faltan las terminaciones de los otros géneros.",      "Desinentiae ceterorum generum desunt."}},
    FaultTexts{FaultKind::GendersTooMany, {"The endings of the other genders are too many here.", "Les terminaisons des autres genres sont ici de trop.", "Le desinenze degli altri generi qui sono di troppo.", "Die Endungen der anderen Geschlechter sind hier zu viel.", "Aquí sobran las terminaciones de los otros géneros.", "Desinentiae ceterorum generum hic supersunt."}},
    FaultTexts{FaultKind::MarkMissing,    {"A mark of a long vowel (:) is missing.",              "Il manque une marque de voyelle longue (:).",          "Manca un segno di vocale lunga (:).",                 "Ein Zeichen für einen langen Vokal (:) fehlt.",            "Falta una marca de vocal larga (:).",                 "Signum vocalis longae (:) deest."}},
    FaultTexts{FaultKind::MarkTooMany,    {"There is a mark of a long vowel (:) too many.",       "Une marque de voyelle longue (:) est de trop.",        "C'è un segno di vocale lunga (:) di troppo.",         "Ein Zeichen für einen langen Vokal (:) ist zu viel.",      "Sobra una marca de vocal larga (:).",                 "Signum vocalis longae (:) superest."}},
    FaultTexts{FaultKind::MarkMoved,      {"A mark (:) stands behind another vowel.",             "Une marque (:) se trouve après une autre voyelle.",    "Un segno (:) sta dopo un'altra vocale.",              "Ein Zeichen (:) steht hinter einem anderen Vokal.",        "Una marca (:) va detrás de otra vocal.",              "Signum (:) post aliam vocalem stat."}},
};
// clang-format on

std::optional<LanguageTexts> textsOf(FaultKind kind)
{
    for (const FaultTexts& fault : Faults)
        if (fault.kind == kind)
            return fault.texts;
    return {};
}

// At the other blanks a long answer goes on in the next line.
QString inHtml(std::string_view letters)
{
    return withUnseenBlanksAs(fromUtf8(letters), QChar::Nbsp).toHtmlEscaped();
}

// The answer with the letter that differs underlined; where it stops too early, the place behind it.
QString underlined(std::string_view answer, std::string_view right)
{
    const auto [start, length] = letterThatDiffers(answer, right);
    const QString letter = length == 0 ? QStringLiteral("&nbsp;") : inHtml(answer.substr(start, length));
    return inHtml(answer.substr(0, start)) + QStringLiteral("<u>%1</u>").arg(letter) +
           inHtml(answer.substr(start + length));
}

} // namespace

TypingDrill::TypingDrill(std::string_view name, std::string_view activeName, std::string_view exerciseType)
    : DrillWindow(name, activeName, exerciseType), why_(makeLabel(this, "WhyLabel", SentenceType)),
      where_(makeLabel(this, "WhereLabel", NoteType))
{
    why_->setTextFormat(Qt::RichText);
    why_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    wrapText(*why_, LinesOfWhy);
    where_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &Window::left, this, &TypingDrill::clearWhy);
}

// The answer that is explained stands until the learner goes on typing.
void TypingDrill::joinBox(const AnswerBox& box)
{
    connect(&box, &QLineEdit::textEdited, this, &TypingDrill::clearWhy);
}

// The last question is the one whose number takes most room: nothing beside it gives way in the middle of a
// drill.
void TypingDrill::showPlace(const LanguageTexts& text, Place place)
{
    const QString ofCount = fromUtf8(text);
    where_->setText(ofCount.arg(place.number).arg(place.count));
    keepMeasure(*where_, "width", [this, last = ofCount.arg(place.count).arg(place.count)](Growth) {
        where_->setMinimumWidth(where_->fontMetrics().horizontalAdvance(last));
    });
}

void TypingDrill::revealAnswer()
{
    if (!canAnswer())
        return;
    holdBoxes();
    clearWhy();
    askedBox().lookRevealed();
    askedBox().setText(fromUtf8(answer()));
    askedBox().setCursorPosition(0);
    askedBox().repaint();
    answerShown();
    if (!pauseWithDrill())
        return;
    answerHidden();
    askedBox().clear();
    focusQuestion();
}

void TypingDrill::answerHidden()
{
    askedBox().lookBlack();
}

void TypingDrill::announce(bool right)
{
    clearWhy();
    if (!right) {
        keys_.clear();
        explain(askedBox().text().toStdString());
    }
    const Stay stay = drillStay();
    {
        const TypedAhead typedAhead(*this, keys_);
        Q_EMIT answerJudged(right);
    }
    if (!stay.lasts()) {
        keys_.clear();
        return;
    }
    if (!why_->text().isEmpty())
        bringIntoView(*why_);
    typeKeysKept();
}

void TypingDrill::clearWhy()
{
    if (why_->text().isEmpty())
        return;
    why_->clear();
    bringIntoView(askedBox());
    why_->setAccessibleName({});
}

std::string TypingDrill::shownBeside(std::string_view text, std::string_view other) const
{
    std::string shown = macronsWhereShown(text);
    return answersInLatin() && shown != macronsWhereShown(other) ? shown : std::string(text);
}

void TypingDrill::explain(const std::string& typed)
{
    if (typed.empty())
        return;
    const std::string right = answer();
    const auto reason = reasonOf(faultOf(typed, right), typed);
    QString text = underlined(shownBeside(typed, right), shownBeside(right, typed));
    if (reason)
        text += QStringLiteral(" &nbsp; ") + fromUtf8(reason->currentOrDesigned()).toHtmlEscaped();
    why_->setText(text);
    why_->setAccessibleName(QTextDocumentFragment::fromHtml(text).toPlainText());
    bringIntoView(*why_);
    QAccessibleEvent alert(why_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

std::optional<LanguageTexts> TypingDrill::reasonOf(FaultKind kind, const std::string& typed) const
{
    const bool isOfMarks = kind >= FaultKind::MarkMissing;
    if (kind == FaultKind::Other || (isOfMarks && !answersInLatin()))
        return answersAnother(typed);
    return textsOf(kind);
}

// Enter checks from the event loop: the learner may be many answers ahead.
void TypingDrill::typeKeysKept()
{
    const qsizetype enter = keys_.indexOf(u'\n');
    const QString typed = keys_.left(enter);
    const QString rest = enter < 0 ? QString() : keys_.sliced(enter + 1);
    keys_.clear();
    if (!canAnswer() || typed.isEmpty())
        return;
    askedBox().insert(typed);
    if (enter < 0)
        return;
    const auto checkThen = [this, rest, stay = drillStay()] {
        if (!stay.lasts())
            return;
        keys_ = rest;
        check();
        keys_.clear();
    };
    QMetaObject::invokeMethod(this, checkThen, Qt::QueuedConnection);
}

} // namespace shell
