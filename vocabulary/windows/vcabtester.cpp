#include "vocabulary/windows/vcabtester.h"

#include "platform/platform.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/language_texts.h"
#include "shell/pause.h"
#include "shell/settings.h"
#include "vocabulary/test_record.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"
#include "vocabulary/windows/vcabtester_menus.h"
#include "vocabulary/windows/word_controls.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QMenuBar>
#include <QPushButton>

namespace vocabulary {

using shell::Caption;
using shell::LanguageTexts;
using shell::Part;

namespace {

constexpr QSize LargestBlock{84, shell::AsItsLines};
constexpr int AnswerCharacters = 44;

// clang-format off
constexpr std::array Captions = {
    //                           English                 French                      Italian German                    Spanish                 Latin
    Caption{"AnswerLabel",      {"Your a&nswer",         "Votre ré&ponse",           {},     "Ihre A&ntwort",          "Su r&espuesta",        "Respo&nsum"}},
    Caption{"VcabTestOmit",     {"Leave &this word out", "Ne plus demander ce &mot", {},     "Dieses Wort &auslassen", "&Omitir esta palabra", "&Hoc verbum omitte"}},
    Caption{"VcabtesterOK",     {"&OK",                  "&OK",                      {},     "&OK",                    "&Aceptar",             "&Ita"}},
    Caption{"VcabtesterCancel", {"Q&uit",                "Q&uitter",                 {},     "&Beenden",               "&Salir",               "R&everte!"}},
    Caption{"HelpLabel",        {"Help=F1",              "Assistance=F1",            {},     "Hilfe=F1",               "Ayuda=F1",             "Auxilium=F1"}},
};

constexpr LanguageTexts Title{"Vocabulary",                 "Vocabulaire",                     {}, "Wortschatz",                       "Vocabulario",                           "Verba nostra"};
constexpr LanguageTexts NoWord{"There is no word to ask.",  "Il n'y a aucun mot à demander.",  {}, "Es gibt kein Wort zum Abfragen.",  "No hay ninguna palabra que preguntar.", "Nullum verbum restat."};
constexpr LanguageTexts WordOf{"word %1 of %2",             "mot %1 sur %2",                   {}, "Wort %1 von %2",                   "palabra %1 de %2",                      "verbum %1 ex %2"};
// clang-format on

// A translation may hold a colon of its own.
QString questionShown()
{
    const bool latin = !hintGivesAnswerAway();
    return latin ? shell::latinText(questionText()) : shell::fromUtf8(questionText());
}

} // namespace

Vcabtester::Vcabtester()
    : TypingDrill("Vcabtester", {}, shell::exercise::Vcabtester), menuBar_(new QMenuBar(this))
{
    makeControls();
    layOut();
    connectControls();
}

void Vcabtester::makeControls()
{
    makeVcabtesterMenus(*menuBar_, *this);
    question_ = shell::makeControl<WordLabel>(this, "VQuestion");
    hint_ = shell::makeControl<WordLabel>(this, "VHint");
    answer_ = shell::makeControl<WordBox>(this, "VcabAnswer");
    joinBox(*answer_);
    omit_ = shell::makeControl<QCheckBox>(this, "VcabTestOmit");
    ok_ = shell::makeButton(this, "VcabtesterOK");
    revealButton_ = shell::makeQuestionButton(this, "VcabtesterQuestion");
    cancel_ = shell::makeButton(this, "VcabtesterCancel");
    shell::setBoldType(*question_, shell::TitleType);
    shell::setType(*hint_, shell::FormType);
    shell::setLeastWidth(*answer_, AnswerCharacters);
    question_->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    hint_->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
}

void Vcabtester::layOut()
{
    layOutLines(LargestBlock, shell::DrillMargins,
                {{whereLabel(), 0, Qt::AlignRight},
                 shell::rowOf(shell::WideSpace, {{question_, 3}, {hint_, 2}}),
                 Part::space(shell::LargeSpace),
                 shell::makeLabelOf(answer_, "AnswerLabel"),
                 answer_,
                 whyLabel(),
                 {omit_, 0, Qt::AlignLeft},
                 shell::buttonRow({shell::makeLabel(this, "HelpLabel")}, {ok_, revealButton_, cancel_})});
    layout()->setMenuBar(menuBar_);
}

void Vcabtester::connectControls()
{
    connect(answer_, &WordBox::returnPressed, this, &Vcabtester::check);
    connect(ok_, &QPushButton::clicked, this, &Vcabtester::check);
    connect(revealButton_, &QPushButton::clicked, this, &Vcabtester::reveal);
    connect(cancel_, &QPushButton::clicked, this, &Vcabtester::left);
    connect(question_, &WordLabel::doubleClicked, this, &Vcabtester::reveal);
    connect(omit_, &QCheckBox::clicked, this, &Vcabtester::omit);
    connectOrder("VcabtesterOptionsOrderSequential", order::Sequential);
    connectOrder("VcabtesterOptionsOrderRandom", order::Random);
    connectPrompt("VcabtesterOptionsPromptEnglish", prompt::English);
    connectPrompt("VcabtesterOptionsPromptMixed", prompt::Mixed);
    connectPrompt("VcabtesterOptionsPromptLatin", prompt::Latin);
}

void Vcabtester::connectOrder(std::string_view item, std::string_view order)
{
    connect(findChild<QAction*>(shell::fromUtf8(item)), &QAction::triggered, this,
            [order] { vocabularyTester.Order = order; });
}

void Vcabtester::connectPrompt(std::string_view item, std::string_view promptLanguage)
{
    connect(findChild<QAction*>(shell::fromUtf8(item)), &QAction::triggered, this,
            [this, promptLanguage] { choosePrompt(promptLanguage); });
}

void Vcabtester::setCaptions()
{
    shell::applyCurrentOrDesignedCaptions(*this, vcabtesterMenuCaptions());
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    QString title = shell::fromUtf8(Title);
    if (!vocabularyList.File.empty())
        title += QStringLiteral(" - ") + shell::fromUtf8(vocabularyList.File.filename().string());
    setWindowTitle(title);
}

void Vcabtester::open()
{
    shell::beginDrill(shell::exercise::Vcabtester);
    const std::string message = openDefaultList();
    findChild<QAction*>(QStringLiteral("VcabtesterOptionsOrderSequential"))->setChecked(true);
    findChild<QAction*>(QStringLiteral("VcabtesterOptionsPromptEnglish"))->setChecked(true);
    ask();
    showAgain();
    if (!message.empty())
        platform::current().showMessage(message);
}

// What was being judged is asked again.
void Vcabtester::comeBack()
{
    if (vocabularyList.CurrentWord == 0 || answer_->isReadOnly())
        ask();
    showAgain();
}

void Vcabtester::ask()
{
    if (vocabularyList.CurrentWord == 0)
        beginTest();
    showTheWord();
}

void Vcabtester::showAgain()
{
    shell::settings.ExerciseType = shell::exercise::Vcabtester;
    setCaptions();
    fitAnew(*question_);
    showInMainWindowState();
    focusQuestion();
}

void Vcabtester::showTheWord()
{
    const bool asked = vocabularyTester.WordIsAsked == platform::FlagTrue;
    question_->showText(asked ? questionShown() : shell::fromUtf8(NoWord));
    hint_->setVisible(!hintText().empty());
    showHint(hintGivesAnswerAway() ? std::string() : hintText());
    if (asked)
        showPlace(WordOf, {vocabularyList.CurrentWord, vocabularyList.WordCount});
    else
        whereLabel()->clear();
    clearWhy();
    omit_->setChecked(currentWordIsOmitted());
    omit_->setEnabled(vocabularyList.WordCount > 0);
    answer_->clear();
    answer_->lookIdle();
    question_->repaint();
}

void Vcabtester::showHint(const std::string& hint)
{
    hint_->showText(shell::latinText(hint));
    answer_->setAccessibleDescription(
        hint.empty() ? question_->text() : question_->text() + QStringLiteral(", ") + hint_->text());
    hint_->repaint();
}

shell::AnswerBox& Vcabtester::askedBox() const
{
    return *answer_;
}

std::string Vcabtester::answer() const
{
    return expectedAnswer();
}

bool Vcabtester::answersInLatin() const
{
    return hintGivesAnswerAway();
}

void Vcabtester::check()
{
    if (!canAnswer())
        return;
    const Judgement judgement = judge(answer_->text().toStdString());
    if (judgement == Judgement::AnswerWanted) {
        reveal();
        return;
    }
    if (judgement == Judgement::NothingAsked) {
        moveOn();
        return;
    }
    const bool right = judgement == Judgement::Right;
    shell::tellAnswer(recordOfWord(answer_->text().toStdString(), right));
    holdBoxes();
    showHint(hintText());
    announce(right);
}

void Vcabtester::reveal()
{
    if (vocabularyTester.WordIsAsked == platform::FlagTrue)
        revealAnswer();
}

void Vcabtester::answerShown()
{
    showHint(hintText());
}

void Vcabtester::holdBoxes()
{
    answer_->setReadOnly(true);
}

// The question that is being judged or shown stands; the next is asked the new way.
void Vcabtester::choosePrompt(std::string_view promptLanguage)
{
    vocabularyTester.PromptLanguage = promptLanguage;
    if (shell::pausing() || vocabularyTester.WordIsAsked != platform::FlagTrue)
        return;
    chooseSide();
    showTheWord();
    focusQuestion();
}

void Vcabtester::omit(bool omitted)
{
    const bool wasAsked = vocabularyTester.WordIsAsked == platform::FlagTrue;
    omitCurrentWord(omitted);
    if (!wasAsked)
        showTheWord();
    if (!shell::pausing())
        focusQuestion();
}

void Vcabtester::moveOn()
{
    goToNextWord(vocabularyTester.Order);
    if (!platform::current().ending())
        showTheWord();
}

void Vcabtester::focusQuestion()
{
    answer_->setReadOnly(false);
    answer_->setFocus();
}

void Vcabtester::askAgain()
{
    countMiss();
    answer_->clear();
    focusQuestion();
}

} // namespace vocabulary
