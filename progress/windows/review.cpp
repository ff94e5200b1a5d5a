#include "progress/windows/review.h"

#include "platform/platform.h"
#include "progress/grammar_names.h"
#include "progress/keeper.h"
#include "progress/other_form.h"
#include "progress/windows/kind_box.h"
#include "progress/windows/review_box.h"
#include "progress/windows/shown_answer.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/pause.h"
#include "shell/settings.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace progress {

using shell::Caption;
using shell::fromUtf8;
using shell::LanguageTexts;
using shell::Part;

namespace {

constexpr QSize LargestBlock{112, shell::AsItsLines};
constexpr int AnswerCharacters = 44;
constexpr int QuestionLines = 2;

// As in the vocabulary test, where "?" may be part of an answer.
constexpr std::string_view AnswerWish = "?";

// clang-format off
constexpr std::array Captions = {
    //                            English         French           Italian German         Spanish          Latin
    Caption{"Review",            {"Review",       "Révision",      {},     "Wiederholung", "Repaso",       "Repetitio"}},
    Caption{"ReviewKindLabel",   {"&Ask",         "&Demander",     {},     "Ab&fragen",    "&Preguntar",   "&Quaere"}},
    Caption{"ReviewAnswerLabel", {"Your a&nswer", "Votre ré&ponse", {},    "Ihre A&ntwort", "Su r&espuesta", "Respo&nsum"}},
    Caption{"ReviewOK",          {"&OK",          "&OK",           {},     "&OK",          "&Aceptar",     "&Ita"}},
    Caption{"ReviewQuit",        {"Q&uit",        "Q&uitter",      {},     "&Beenden",     "&Salir",       "R&everte!"}},
    Caption{"HelpLabel",         {"Help=F1",      "Assistance=F1", {},     "Hilfe=F1",     "Ayuda=F1",     "Auxilium=F1"}},
};

// Kinds of exercise that come again; the first stands for all of them.
struct Kind {
    std::string_view exercise;
    LanguageTexts texts;
};

constexpr std::array Kinds = {
    Kind{"",                           {"All kinds",  "Tout",         {}, "Alles gemischt", "Todo",        "Omnia"}},
    Kind{shell::exercise::Conjugation, {"Verbs",      "Verbes",       {}, "Verben",         "Verbos",      "Conjugationes"}},
    Kind{shell::exercise::Declination, {"Nouns",      "Substantifs",  {}, "Substantive",    "Nombres",     "Declinationes"}},
    Kind{shell::exercise::Pronouns,    {"Pronouns",   "Pronoms",      {}, "Pronomen",       "Pronombres",  "Pronomina"}},
    Kind{shell::exercise::Vcabtester,  {"Vocabulary", "Vocabulaire",  {}, "Wortschatz",     "Vocabulario", "Verba nostra"}},
};

constexpr LanguageTexts Left{"%1 left", "%1 à revoir", {}, "%1 übrig", "%1 por repasar", "%1 repetenda"};
constexpr LanguageTexts Before{"Before: %1, not %2", "Avant : %1, et non %2", {}, "Zuvor: %1, nicht %2", "Antes: %1, no %2", "Antea: %1, non %2"};
constexpr LanguageTexts BeforeEmpty{"Before: %1", "Avant : %1", {}, "Zuvor: %1", "Antes: %1", "Antea: %1"};
constexpr LanguageTexts NothingDue{"Nothing is due today.", "Rien n'est à revoir aujourd'hui.", {}, "Heute ist nichts fällig.", "Hoy no hay nada que repasar.", "Hodie nihil repetendum est."};
constexpr LanguageTexts OfKind{"%1: %2", "%1 : %2", {}, "%1: %2", "%1: %2", "%1: %2"};
constexpr LanguageTexts AllDone{"All that was due is done.", "Tout ce qui était à revoir est fait.", {}, "Alles Fällige ist erledigt.", "Todo lo que había que repasar está hecho.", "Omnia repetenda peracta sunt."};
constexpr LanguageTexts OneMissed{"All that was due has been asked. 1 was missed and will come again.", "Tout ce qui était à revoir a été demandé. 1 question a été manquée et reviendra.", {}, "Alles Fällige ist abgefragt. 1 war falsch und kommt wieder.", "Se ha preguntado todo lo que había que repasar. 1 pregunta se falló y volverá a salir.", "Omnia repetenda quaesita sunt. 1 perperam responsum est et iterum quaeretur."};
constexpr LanguageTexts SomeMissed{"All that was due has been asked. %1 were missed and will come again.", "Tout ce qui était à revoir a été demandé. %1 questions ont été manquées et reviendront.", {}, "Alles Fällige ist abgefragt. %1 waren falsch und kommen wieder.", "Se ha preguntado todo lo que había que repasar. %1 preguntas se fallaron y volverán a salir.", "Omnia repetenda quaesita sunt. %1 perperam responsa sunt et iterum quaerentur."};
// clang-format on

QString nameOfExercise(const std::string& exercise)
{
    for (const Kind& kind : Kinds)
        if (kind.exercise == exercise)
            return fromUtf8(kind.texts);
    return {};
}

} // namespace

Review::Review() : TypingDrill("Review", "review", shell::exercise::Review)
{
    makeControls();
    layOut();
    connectControls();
}

void Review::makeControls()
{
    kind_ = shell::makeControl<KindBox>(this, "ReviewKind");
    kind_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    kindLabel_ = shell::makeLabelOf(kind_, "ReviewKindLabel");
    title_ = shell::makeLabel(this, "ReviewTitle", shell::FormType);
    left_ = shell::makeLabel(this, "ReviewLeft");
    score_ = shell::makeScore(this, "ScoreLabel");
    question_ = shell::makeHeading(this, "ReviewQuestion", shell::HeadingType);
    shell::wrapText(*question_, QuestionLines);
    answer_ = shell::makeControl<ReviewBox>(this, "ReviewAnswer");
    joinBox(*answer_);
    shell::setLeastWidth(*answer_, AnswerCharacters);
    before_ = shell::makeLabel(this, "ReviewBefore", shell::SentenceType);
    shell::wrapText(*before_, 1);
    ok_ = shell::makeButton(this, "ReviewOK");
    hint_ = shell::makeQuestionButton(this, "ReviewHint");
    quit_ = shell::makeButton(this, "ReviewQuit");
    whereLabel()->hide();
}

void Review::layOut()
{
    layOutLines(LargestBlock, shell::DrillMargins,
                {shell::rowOf(shell::SmallSpace, {kindLabel_, kind_, Part::gap(1), score_}),
                 shell::rowOf(shell::SmallSpace, {title_, Part::gap(1), left_}), question_,
                 Part::space(shell::SmallSpace), shell::makeLabelOf(answer_, "ReviewAnswerLabel"), answer_,
                 whyLabel(), before_,
                 shell::buttonRow({shell::makeLabel(this, "HelpLabel")}, {ok_, hint_, quit_})});
}

void Review::connectControls()
{
    connect(kind_, &KindBox::activated, this, &Review::beginRound);
    connect(kind_, &KindBox::chosen, this, &Review::focusQuestion);
    connect(kind_, &KindBox::letterTyped, this, &Review::typeIntoAnswer);
    connect(answer_, &ReviewBox::returnPressed, this, &Review::check);
    connect(answer_, &ReviewBox::hintRequested, this, &Review::hint);
    connect(ok_, &QPushButton::clicked, this, &Review::check);
    connect(hint_, &QPushButton::clicked, this, &Review::hint);
    connect(quit_, &QPushButton::clicked, this, &Review::left);
}

void Review::setCaptions()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    kind_->clear();
    for (const Kind& kind : Kinds)
        kind_->addItem(fromUtf8(kind.texts));
}

void Review::open(Keeper& keeper)
{
    shell::beginDrill(shell::exercise::Review);
    keeper_ = &keeper;
    round_ = {};
    setCaptions();
    score_->clear();
    beginRound();
    showInMainWindowState();
    focusQuestion();
}

void Review::beginRound()
{
    Store* const store = keeper_->store();
    const Day today = platform::localDay(platform::current().now());
    const auto& kind = Kinds.at(static_cast<std::size_t>(kind_->currentIndex()));
    round_.begin(store == nullptr ? std::vector<std::int64_t>() : store->dueForms(today, kind.exercise));
    clearWhy();
    before_->clear();
    ask();
    if (!asked_)
        question_->setText(ofKind(fromUtf8(NothingDue)));
}

void Review::typeIntoAnswer(QKeyEvent* key)
{
    if (!asked_)
        return;
    answer_->setFocus();
    QApplication::sendEvent(answer_, key);
}

// A form that is gone from the store is passed over.
void Review::ask()
{
    asked_.reset();
    for (auto number = round_.asked(); number && !asked_; number = round_.asked()) {
        Store* const store = keeper_->store();
        const auto form = store == nullptr ? std::nullopt : store->form(*number);
        if (form)
            asked_ = questionFor(*form);
        else
            round_.moveOn(true);
    }
    showQuestion();
}

void Review::showQuestion()
{
    title_->setText(asked_ ? nameOfExercise(asked_->exercise) : windowTitle());
    question_->setText(asked_ ? shownQuestion() : end());
    left_->setText(fromUtf8(Left).arg(round_.left()));
    if (asksWord())
        answer_->takeWord();
    else
        answer_->takeForm();
    answer_->clear();
    answer_->lookIdle();
    answer_->setAccessibleDescription(question_->text());
    for (QWidget* const control : std::initializer_list<QWidget*>{ok_, hint_, answer_})
        control->setEnabled(asked_.has_value());
}

QString Review::end() const
{
    const int missed = round_.missed();
    if (missed == 0)
        return ofKind(fromUtf8(AllDone));
    return ofKind(missed == 1 ? fromUtf8(OneMissed) : fromUtf8(SomeMissed).arg(missed));
}

// Of other kinds more may be due.
QString Review::ofKind(const QString& sentence) const
{
    return kind_->currentIndex() == 0 ? sentence : fromUtf8(OfKind).arg(kind_->currentText(), sentence);
}

bool Review::asksWord() const
{
    return asked_ && asked_->exercise == shell::exercise::Vcabtester;
}

// A translation may hold a colon of its own.
QString Review::shownQuestion() const
{
    if (!asksWord())
        return withLastPartWhole(shell::latinText(questionInLanguageShown(asked_->exercise, asked_->asked)));
    return !answersInLatin() ? shell::latinText(asked_->asked) : fromUtf8(asked_->asked);
}

shell::AnswerBox& Review::askedBox() const
{
    return *answer_;
}

std::string Review::answer() const
{
    return asked_ ? asked_->expected : std::string();
}

bool Review::answersInLatin() const
{
    return !asksWord() || shell::partsOfPlace(asked_->place)[1] == shell::AskedWithTranslation;
}

std::optional<LanguageTexts> Review::answersAnother(const std::string& typed) const
{
    return asked_ ? otherFormOf(*asked_, typed) : std::nullopt;
}

void Review::check()
{
    if (!canAnswer() || !asked_)
        return;
    const std::string typed = answer_->text().toStdString();
    if (asksWord() && typed == AnswerWish) {
        hint();
        return;
    }
    const shell::AnswerRecord record = judged(*asked_, typed);
    written_ = typed;
    before_->clear();
    holdBoxes();
    shell::tellAnswer(record);
    announce(record.right);
}

void Review::hint()
{
    if (asked_)
        revealAnswer();
}

// What is judged or shown stands until the pause is over.
void Review::holdBoxes()
{
    answer_->setReadOnly(true);
    kind_->setEnabled(false);
}

void Review::showScore(const std::string& text)
{
    score_->setText(fromUtf8(text));
}

void Review::moveOn()
{
    round_.moveOn(true);
    ask();
}

void Review::askAgain()
{
    const auto missed = round_.asked();
    round_.moveOn(false);
    if (round_.asked() != missed) {
        dropKeysKept();
        showBefore();
    }
    ask();
    focusQuestion();
}

// What explains the wrong answer goes with its question; the right one stays in sight beside the next.
void Review::showBefore()
{
    clearWhy();
    if (!asked_)
        return;
    const std::string& expected = asked_->expected;
    const QString right = fromUtf8(shownBeside(expected, written_));
    const QString written = withBlanksSeen(fromUtf8(shownBeside(written_, expected)));
    before_->setText(written_.empty() ? fromUtf8(BeforeEmpty).arg(right)
                                      : fromUtf8(Before).arg(right, written));
}

void Review::focusQuestion()
{
    answer_->setReadOnly(false);
    kind_->setEnabled(true);
    if (asked_)
        answer_->setFocus();
    else
        quit_->setFocus();
}

} // namespace progress
