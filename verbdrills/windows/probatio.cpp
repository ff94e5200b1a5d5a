#include "verbdrills/windows/probatio.h"

#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "shell/pause.h"
#include "shell/settings.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/quiz_texts.h"
#include "verbdrills/verb_records.h"
#include "verbdrills/windows/person_and_number.h"
#include "verbdrills/windows/quiz_list.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace verbdrills {

using shell::Caption;
using shell::columnOf;
using shell::englishToo;
using shell::LanguageTexts;
using shell::makeButton;
using shell::makeLabel;
using shell::Part;
using shell::rowOf;

namespace {

constexpr QSize LargestBlock{120, shell::AsItsLines};
constexpr int LinesOfAnswer = 2;

// clang-format off
constexpr std::array Captions = {
    //                                    English, French, Italian              German                                                             Spanish                              Latin
    Caption{"Probatio",        QuizTitle},
    Caption{"YourAnswerLabel", englishToo("Your Answer",                        "Ihre Antwort",                                                    "Tu respuesta",                      "Responsum Tuum")},
    Caption{"HelpLabel",       englishToo("Help=F1",                            "Hilfe=F1",                                                        "Ayuda=F1",                          "Auxilium=F1")},
    Caption{"IdentifyLabel",   englishToo("Identify the grammar of this form:", "Geben Sie die grammatischen Einzelheiten der folgenden Form an!", "Analiza la forma de esta palabra:", "Dona grammaticam sequentis verbi:")},
    Caption{"QuizOK",          englishToo("&OK",                                "&OK",                                                             "&Si",                               "&Ita")},
    Caption{"QuizCancel",      englishToo("&Cancel",                            "&Abbruch",                                                        "&Cancelar",                         "&Reverte!")},
    Caption{"QuizSkip",        englishToo("&Skip",                              "Aus&lassen",                                                      "S&altar",                           "&Transgredire!")},
    Caption{"QuizOptions",     englishToo("O&ptions",                           "O&ptionen",                                                       "&Opciones",                         "O&ptiones")},
    Caption{"QuizFirst",       englishToo("&First Person",                      "&Erste Person",                                                   "Pri&mera persona",                  "Persona &prima")},
    Caption{"QuizSecond",      englishToo("&Second Person",                     "&Zweite Person",                                                  "&Segunda persona",                  "Persona se&cunda")},
    Caption{"QuizThird",       englishToo("&Third Person",                      "&Dritte Person",                                                  "&Tercera persona",                  "Persona &tertia")},
    Caption{"QuizSing",        englishToo("Sin&gular",                          "Ein&zahl",                                                        "Sin&gular",                         "Sin&gularis")},
    Caption{"QuizPlural",      englishToo("&Plural",                            "&Mehrzahl",                                                       "&Plural",                           "&Pluralis")},
};

constexpr LanguageTexts CorrectHeading = englishToo("Correct Answer", "Korrekte Antwort", "Correct Answer", "Responsum rectum"); // sic: Spanish
// clang-format on

} // namespace

Probatio::Probatio() : DrillWindow("Probatio", "quiz", shell::exercise::Quiz)
{
    makeControls();
    layOut();
    connectControls();
    shell::applyDesignedCaptions(*this, Captions);
}

void Probatio::makeControls()
{
    item_ = shell::makeHeading(this, "QuizItem", shell::TitleType);
    baseForm_ = makeLabel(this, "QuizBaseForm", shell::FormType);
    classes_ = new QuizList("QuizConjList", QStringLiteral("Conjugations"), this);
    personAndNumber_ = new PersonAndNumber(this);
    tenses_ = new QuizList("QuizTenseList", QStringLiteral("Tenses"), this);
    yourAnswer_ = makeLabel(this, "QuizYourAnswer");
    correctHeading_ = shell::makeHeading(this, "QuizHeading", 1);
    correct_ = makeLabel(this, "QuizCorrect");
    for (QLabel* const answer : {yourAnswer_, correct_}) {
        shell::wrapText(*answer, LinesOfAnswer);
        answer->setAlignment(Qt::AlignTop);
    }
    ok_ = makeButton(this, "QuizOK");
    question_ = shell::makeQuestionButton(this, "QuizQuestion");
    skip_ = makeButton(this, "QuizSkip");
    options_ = makeButton(this, "QuizOptions");
    cancel_ = makeButton(this, "QuizCancel");
}

void Probatio::layOut()
{
    QLabel* const identify = makeLabel(this, "IdentifyLabel");
    identify->setWordWrap(true);
    QBoxLayout* const form =
        rowOf(shell::WideSpace, {item_, {baseForm_, 1, Qt::AlignRight | Qt::AlignBottom}});
    layOutLines(
        LargestBlock, shell::DrillMargins,
        {columnOf(shell::HairSpace, {identify, form}), answerColumns(), answersInWords(),
         shell::buttonRow({makeLabel(this, "HelpLabel")}, {ok_, question_, skip_, options_, cancel_})});
}

QBoxLayout* Probatio::answerColumns()
{
    auto* const left = columnOf(shell::MediumSpace, {classes_, personAndNumber_, Part::gap()});
    return rowOf(shell::LargeSpace, {{left, 1}, {tenses_, 1}});
}

QGridLayout* Probatio::answersInWords()
{
    QGridLayout* const grid = shell::gridOf(shell::LargeSpace, shell::HairSpace);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->addWidget(shell::makeHeading(this, "YourAnswerLabel", 1), 0, 0);
    grid->addWidget(correctHeading_, 0, 1);
    grid->addWidget(yourAnswer_, 1, 0, Qt::AlignTop);
    grid->addWidget(correct_, 1, 1, Qt::AlignTop);
    return grid;
}

void Probatio::connectControls()
{
    for (QuizList* const list : {classes_, tenses_}) {
        connect(list, &QuizList::rowChosen, this, &Probatio::showChosenAnswer);
        shell::onEnter(*list, [this] { check(); });
    }
    connect(personAndNumber_, &PersonAndNumber::chosen, this, &Probatio::showChosenAnswer);
    shell::onEnter(*personAndNumber_, [this] { check(); });
    connect(ok_, &QPushButton::clicked, this, &Probatio::check);
    connect(question_, &QPushButton::clicked, this, &Probatio::showRightAnswer);
    connect(new QShortcut(Qt::Key_Question, this), &QShortcut::activated, this, &Probatio::showRightAnswer);
    connect(skip_, &QPushButton::clicked, this, &Probatio::skip);
    connect(options_, &QPushButton::clicked, this, &Probatio::optionsRequested);
    connect(cancel_, &QPushButton::clicked, this, &Probatio::left);
}

void Probatio::open()
{
    shell::applyCaptions(*this, Captions);
    classes_->fill(quizClassNames());
    tenses_->fill(quizTenseNames());
    verbQuiz.formIsAsked = false;
    resume();
}

void Probatio::resume()
{
    if (verbQuiz.formIsAsked || askAnotherForm())
        appear();
}

void Probatio::comeBack()
{
    if (verbQuiz.formIsAsked || !someFormCanBeAsked())
        appear();
    else
        resume();
}

void Probatio::appear()
{
    showForm();
    showInMainWindowState();
    focusQuestion();
}

bool Probatio::askAnotherForm()
{
    const bool asked = askForm();
    showForm();
    resetAnswer();
    if (!asked)
        Q_EMIT nothingToAsk();
    return asked;
}

void Probatio::showForm()
{
    const bool asked = verbQuiz.formIsAsked;
    item_->setText(asked ? shell::latinText(formAsked()) : QString());
    baseForm_->setText(asked ? shell::fromUtf8(titleOfFormAsked()) : QString());
    ok_->setEnabled(asked);
    question_->setEnabled(asked);
}

void Probatio::resetAnswer()
{
    classes_->reset();
    tenses_->reset();
    personAndNumber_->reset();
    yourAnswer_->clear();
    correctHeading_->clear();
    correct_->clear();
}

Identification Probatio::chosenAnswer() const
{
    return {.classRow = classes_->chosenRow(),
            .tenseRow = tenses_->chosenRow(),
            .person = personAndNumber_->person(),
            .number = personAndNumber_->number()};
}

void Probatio::showChosenAnswer()
{
    yourAnswer_->setText(shell::fromUtf8(describe(chosenAnswer())));
}

void Probatio::check()
{
    if (!canAnswer() || !verbQuiz.formIsAsked)
        return;
    showChosenAnswer();
    const bool right = judgeIdentification(chosenAnswer());
    shell::tellAnswer(recordOfIdentification(chosenAnswer(), right));
    Q_EMIT answerJudged(right);
}

void Probatio::skip()
{
    if (!shell::pausing() && askAnotherForm())
        focusQuestion();
}

void Probatio::showRightAnswer()
{
    if (shell::pausing() || !verbQuiz.formIsAsked)
        return;
    showChosenAnswer();
    correctHeading_->setText(shell::fromUtf8(CorrectHeading));
    correct_->setText(shell::fromUtf8(describe(rightIdentification())));
}

bool Probatio::formIsSolved() const
{
    return !item_->text().isEmpty() && (!verbQuiz.formIsAsked || !correct_->text().isEmpty());
}

void Probatio::moveOn()
{
    askAnotherForm();
}

void Probatio::focusQuestion()
{
    classes_->setFocus();
}

void Probatio::askAgain()
{
    focusQuestion();
}

} // namespace verbdrills
