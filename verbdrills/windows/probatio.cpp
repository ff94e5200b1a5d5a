#include "verbdrills/windows/probatio.h"

#include "shell/pause.h"
#include "shell/settings.h"
#include "shell/windows/captions.h"
#include "shell/windows/choice_list.h"
#include "shell/windows/text.h"
#include "shell/windows/type.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/quiz_texts.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

#include <array>

namespace verbdrills {

using shell::Caption;
using shell::ChoiceList;
using shell::englishToo;

namespace {

constexpr QSize LargestBlock{120, 43};
constexpr int FewestRows = 5;
constexpr int RowSpace = 1;
constexpr double RowType = 1.1;

// So much more than a spacer's stretch that a list grows first.
constexpr int FillsColumn = 1000;

// Numbers of the option buttons: the persons 1 to 3 in their group, singular and plural in theirs.
constexpr int FirstPerson = 1;
constexpr int Singular = 0;
constexpr int Plural = 1;
constexpr std::array PersonButtons = {"QuizFirst", "QuizSecond", "QuizThird"};
constexpr std::array NumberButtons = {"QuizSing", "QuizPlural"};

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

// Spanish has the English heading.
constexpr shell::LanguageTexts CorrectHeading = englishToo("Correct Answer", "Korrekte Antwort", "Correct Answer", "Responsum rectum");
// clang-format on

QLabel* makeLabel(QWidget* parent, const char* name)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* makeButton(QWidget* parent, const char* name)
{
    auto* const button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true);
    return button;
}

ChoiceList* makeList(QWidget* parent, const char* name, const QString& accessibleName)
{
    auto* const list = new ChoiceList(parent);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(accessibleName);
    shell::setType(*list, RowType);
    list->setSpacing(RowSpace);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

template <std::size_t Count>
QButtonGroup* makeOptions(QWidget* parent, const std::array<const char*, Count>& names, int firstNumber)
{
    auto* const group = new QButtonGroup(parent);
    int number = firstNumber;
    for (const char* const name : names) {
        auto* const option = new QRadioButton(parent);
        option->setObjectName(QLatin1String(name));
        group->addButton(option, number++);
    }
    return group;
}

// A list takes the height of its rows where there is room, and scrolls where there is little.
void fill(ChoiceList& list, std::span<const shell::LanguageTexts> rows)
{
    shell::fillList(list, rows);
    const int frame = 2 * (list.frameWidth() + RowSpace);
    const int row = list.sizeHintForRow(0) + 2 * RowSpace;
    list.setMinimumSize(list.sizeHintForColumn(0) + frame + shell::WideSpace, FewestRows * row + frame);
    list.setMaximumHeight(list.count() * row + frame);
}

} // namespace

Probatio::Probatio() : Window("Probatio", "quiz")
{
    makeControls();
    layOut();
    connectControls();
    shell::applyDesignedCaptions(*this, Captions);
    shell::registerDrill(shell::exercise::Quiz, *this);
}

Probatio::~Probatio()
{
    shell::unregisterDrill(shell::exercise::Quiz);
}

void Probatio::makeControls()
{
    item_ = makeLabel(this, "QuizItem");
    baseForm_ = makeLabel(this, "QuizBaseForm");
    shell::setBoldType(*item_, shell::TitleType);
    shell::setType(*baseForm_, shell::FormType);
    classes_ = makeList(this, "QuizConjList", QStringLiteral("Conjugations"));
    tenses_ = makeList(this, "QuizTenseList", QStringLiteral("Tenses"));
    persons_ = makeOptions(this, PersonButtons, FirstPerson);
    numbers_ = makeOptions(this, NumberButtons, Singular);
    yourAnswer_ = makeLabel(this, "QuizYourAnswer");
    correctHeading_ = makeLabel(this, "QuizHeading");
    correct_ = makeLabel(this, "QuizCorrect");
    yourAnswer_->setWordWrap(true);
    correct_->setWordWrap(true);
    ok_ = makeButton(this, "QuizOK");
    question_ = makeButton(this, "QuizQuestion");
    skip_ = makeButton(this, "QuizSkip");
    options_ = makeButton(this, "QuizOptions");
    cancel_ = makeButton(this, "QuizCancel");
    question_->setText(QStringLiteral("?"));
    question_->setAccessibleName(QStringLiteral("Show the answer"));
}

void Probatio::layOut()
{
    auto* const rows = new QVBoxLayout(centredBlock(LargestBlock));
    rows->setContentsMargins(shell::WideSpace, shell::LargeSpace, shell::WideSpace, shell::LargeSpace);
    rows->setSpacing(shell::MediumSpace);
    rows->addLayout(questionRows());
    rows->addLayout(answerColumns(), 1);
    rows->addLayout(answersInWords());
    rows->addLayout(buttonRow());
}

QBoxLayout* Probatio::questionRows()
{
    QLabel* const identify = makeLabel(this, "IdentifyLabel");
    identify->setWordWrap(true);
    auto* const form = new QHBoxLayout;
    form->setSpacing(shell::WideSpace);
    form->addWidget(item_);
    form->addWidget(baseForm_, 1, Qt::AlignRight | Qt::AlignBottom);
    auto* const rows = new QVBoxLayout;
    rows->setSpacing(shell::HairSpace);
    rows->addWidget(identify);
    rows->addLayout(form);
    return rows;
}

QBoxLayout* Probatio::answerColumns()
{
    auto* const left = new QVBoxLayout;
    left->setSpacing(shell::MediumSpace);
    left->addWidget(classes_, FillsColumn);
    left->addLayout(buttonsOfPersonAndNumber());
    left->addStretch(1);
    auto* const right = new QVBoxLayout;
    right->addWidget(tenses_, FillsColumn);
    right->addStretch(1);
    auto* const columns = new QHBoxLayout;
    columns->setSpacing(shell::LargeSpace);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    return columns;
}

QGridLayout* Probatio::buttonsOfPersonAndNumber()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(shell::LargeSpace);
    grid->setVerticalSpacing(shell::HairSpace);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (QAbstractButton* const person : persons_->buttons())
        grid->addWidget(person, row++, 0);
    row = 0;
    for (QAbstractButton* const number : numbers_->buttons())
        grid->addWidget(number, row++, 1);
    return grid;
}

QGridLayout* Probatio::answersInWords()
{
    QLabel* const yourHeading = makeLabel(this, "YourAnswerLabel");
    shell::setBoldType(*yourHeading, 1);
    shell::setBoldType(*correctHeading_, 1);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(shell::LargeSpace);
    grid->setVerticalSpacing(shell::HairSpace);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->addWidget(yourHeading, 0, 0);
    grid->addWidget(correctHeading_, 0, 1);
    grid->addWidget(yourAnswer_, 1, 0, Qt::AlignTop);
    grid->addWidget(correct_, 1, 1, Qt::AlignTop);
    grid->setRowMinimumHeight(1, 2 * QFontMetrics(font()).lineSpacing());
    return grid;
}

QBoxLayout* Probatio::buttonRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(makeLabel(this, "HelpLabel"));
    row->addStretch();
    for (QPushButton* const button : {ok_, question_, skip_, options_, cancel_})
        row->addWidget(button);
    return row;
}

void Probatio::connectControls()
{
    for (ChoiceList* const list : {classes_, tenses_}) {
        connect(list, &ChoiceList::rowChosen, this, &Probatio::showChosenAnswer);
        checkOnEnter(list);
    }
    for (const QButtonGroup* const group : {persons_, numbers_}) {
        connect(group, &QButtonGroup::idClicked, this, &Probatio::showChosenAnswer);
        for (QAbstractButton* const option : group->buttons())
            checkOnEnter(option);
    }
    connect(ok_, &QPushButton::clicked, this, &Probatio::check);
    connect(question_, &QPushButton::clicked, this, &Probatio::showRightAnswer);
    connect(skip_, &QPushButton::clicked, this, &Probatio::skip);
    connect(options_, &QPushButton::clicked, this, &Probatio::optionsRequested);
    connect(cancel_, &QPushButton::clicked, this, &Probatio::left);
}

void Probatio::checkOnEnter(QWidget* control)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const enter = new QShortcut(key, control);
        enter->setContext(Qt::WidgetShortcut);
        connect(enter, &QShortcut::activated, this, &Probatio::check);
    }
}

void Probatio::open()
{
    shell::applyCaptions(*this, Captions);
    fill(*classes_, quizClassNames());
    fill(*tenses_, quizTenseNames());
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
    item_->setText(asked ? shell::fromUtf8(formAsked()) : QString());
    baseForm_->setText(asked ? shell::fromUtf8(titleOfFormAsked()) : QString());
    ok_->setEnabled(asked);
    question_->setEnabled(asked);
}

void Probatio::resetAnswer()
{
    for (ChoiceList* const list : {classes_, tenses_}) {
        list->selectionModel()->clear();
        list->scrollToTop();
    }
    persons_->button(FirstPerson)->setChecked(true);
    numbers_->button(Singular)->setChecked(true);
    yourAnswer_->clear();
    correctHeading_->clear();
    correct_->clear();
}

Identification Probatio::chosenAnswer() const
{
    return {.classRow = classes_->chosenRow(),
            .tenseRow = tenses_->chosenRow(),
            .person = persons_->checkedId(),
            .number = numbers_->checkedId() == Plural ? quiz_number::Plural : quiz_number::Sing};
}

void Probatio::showChosenAnswer()
{
    yourAnswer_->setText(shell::fromUtf8(describe(chosenAnswer())));
}

void Probatio::check()
{
    if (shell::pausing() || !isVisible() || !verbQuiz.formIsAsked)
        return;
    showChosenAnswer();
    Q_EMIT answerJudged(isRightIdentification(chosenAnswer()));
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
    correctHeading_->setText(shell::fromUtf8(CorrectHeading.designedOrCurrent()));
    correct_->setText(shell::fromUtf8(describe(rightIdentification())));
}

void Probatio::closeBoxPressed()
{
    Q_EMIT left();
}

void Probatio::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT left();
    else
        Window::keyPressEvent(event);
}

// The quiz shows no score, and has no box that turns grey.
void Probatio::showScore(const std::string&) {}

void Probatio::greyAnsweredBox() {}

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
