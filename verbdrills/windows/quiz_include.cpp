#include "verbdrills/windows/quiz_include.h"

#include "shell/kit/captions.h"
#include "shell/kit/content_area.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "verbdrills/quiz_texts.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace verbdrills {

using shell::Caption;
using shell::englishToo;
using shell::makeButton;
using shell::makeControl;

namespace {

constexpr int ClassColumns = 4;

// Less is scrolled on a small screen.
constexpr int FewestLines = 8;

// A column of tenses, and its last one.
struct TenseColumn {
    const char* heading;
    std::size_t last;
};

constexpr std::array TenseColumns = {TenseColumn{"InclIndicative", verbs::FuturePerfectIndicative},
                                     TenseColumn{"InclSubjunctive", verbs::Imperative},
                                     TenseColumn{"InclPassive", verbs::PassivePluperfectSubjunctive}};

static_assert(TenseColumns.back().last == verbs::BlockCount);

// clang-format off
constexpr std::array Captions = {
    //                                English, French, Italian      German                                            Spanish                              Latin
    Caption{"QuizInclude", QuizTitle},
    Caption{"ConjFrame",   englishToo("Conjugations to Include:",   "Konjugationen, die in der Öbung gelten sollen:", "Conjugaciones que incluir:",        "Conjugationes comprehendae in Probatione")}, // sic: German
    Caption{"TenseFrame",  englishToo("Tenses to Include in Quiz:", "Zeitformen, die in der Öbung gelten sollen:",    "Tiempos que incluir en la Prueba:", "Tempora comprehendae in Probatione")}, // sic: German
    Caption{"InclQuiz",    englishToo("&OK",                        "&OK",                                            "&Si",                               "&Ita")},
    Caption{"InclInclude", englishToo("&Include All",               "&Alle",                                          "&Incluir todos",                    "&Omnia")},
    Caption{"InclClear",   englishToo("C&lear All",                 "Aus&räumen",                                     "&Borrar todos",                     "Pur&ga!")},
    Caption{"InclCancel",  englishToo("&Cancel",                    "Ab&bruch",                                       "&Cancelar",                         "&Reverte!")},
    Caption{"InclConj0",   englishToo("First",                      "Erste",                                          "Primera",                           "Prima")},
    Caption{"InclConj1",   englishToo("Second",                     "Zweite",                                         "Segunda",                           "Secunda")},
    Caption{"InclConj2",   englishToo("Third",                      "Dritte",                                         "Tercera",                           "Tertia")},
    Caption{"InclConj3",   englishToo("Fourth",                     "Vierte",                                         "Cuarta",                            "Quarta")},
    Caption{"InclConj4",   englishToo("Third -io",                  "Dritte -io",                                     "Tercera -io",                       "Tertia -io")},
    Caption{"InclConj5",   englishToo("Esse",                       "Esse",                                           "Esse",                              "Esse")},
    Caption{"InclConj6",   englishToo("Velle",                      "Velle",                                          "Velle",                             "Velle")},
    Caption{"InclConj7",   englishToo("Ferre",                      "Ferre",                                          "Ferre",                             "Ferre")},
    Caption{"InclTense0",  englishToo("Present",                    "Präsens",                                        "Presente",                          "Praesens")},
    Caption{"InclTense1",  englishToo("Imperfect",                  "Imperfekt",                                      "Imperfecto",                        "Imperfectum")},
    Caption{"InclTense2",  englishToo("Future",                     "Futur",                                          "Futuro",                            "Futurum")},
    Caption{"InclTense3",  englishToo("Perfect",                    "Perfekt",                                        "Perfecto",                          "Perfectum")},
    Caption{"InclTense4",  englishToo("Pluperfect",                 "Plusquamperfekt",                                "Pluscuamperfecto",                  "Plusquam perfectum")},
    Caption{"InclTense5",  englishToo("Future Perfect",             "Futur Perfekt",                                  "Future Perfect",                    "Futurum perfectum")}, // sic: Spanish
    Caption{"InclTense6",  englishToo("Subjunctive Pres.",          "Präsens Konj.",                                  "Pres. subjuntivo",                  "Praesens Subj.")},
    Caption{"InclTense7",  englishToo("Subjunctive Impf.",          "Imperfekt Konj.",                                "Imperf. subjuntivo",                "Imperfectum Subj.")},
    Caption{"InclTense8",  englishToo("Subjunctive Perf.",          "Perfekt Konj.",                                  "Perf. subjuntivo",                  "Perfectum Subj.")},
    Caption{"InclTense9",  englishToo("Subjunctive Pluperf.",       "Plusquamperf. Konj.",                            "Pluscuamperf. subjuntivo",          "Plusquam perf. Subj.")},
    Caption{"InclTense10", englishToo("Imperative",                 "Imperativ",                                      "Imperativo",                        "Imperativus Modus")},
    Caption{"InclTense11", englishToo("Passive Present",            "Passiv Präsens",                                 "Present pasivo",                    "Passivum Praesens")}, // sic: Spanish
    Caption{"InclTense12", englishToo("Passive Imperfect",          "Passiv Imperfekt",                               "Imperfecto pasivo",                 "Passivum Imperfectum")},
    Caption{"InclTense13", englishToo("Passive Future",             "Passiv Futur",                                   "Futuro pasivo",                     "Passivum Futurum")},
    Caption{"InclTense14", englishToo("Passive Perfect",            "Passiv Perfekt",                                 "Perfecto pasivo",                   "Passivum Perfectum")},
    Caption{"InclTense15", englishToo("Passive Pluperfect",         "Passiv Plusquamperf.",                           "Pluscuamperf. pasivo",              "Passivum Plusquam perf.")},
    Caption{"InclTense16", englishToo("Passive Future Perf.",       "Passiv Futur Perf.",                             "Futuro de subjuntivo pasivo",       "Passivum Futurum Perf.")}, // sic: Spanish
    Caption{"InclTense17", englishToo("Passive Pres. Subj.",        "Passiv Präs. Konj.",                             "Presente de subj. pasivo",          "Passivum Praes. Subj.")},
    Caption{"InclTense18", englishToo("Passive Imperf. Subj.",      "Passiv Imperf. Konj.",                           "Imperfecto de subj. pasivo",        "Passivum Imperf. Subj.")},
    Caption{"InclTense19", englishToo("Passive Perf. Subj.",        "Passiv Perf. Konj.",                             "Perfecto de subj. pasivo",          "Passivum Perf. Subj.")},
    Caption{"InclTense20", englishToo("Passive Pluperf. Subj.",     "Passiv Plusq. Konj.",                            "Pluscuamperfecto de subj. pasivo",  "Passivum Plusq. Subj.")},

    Caption{"InclIndicative",  englishToo("Indicative",                 "Indikativ",                "Indicativo",               "Indicativus")},
    Caption{"InclSubjunctive", englishToo("Subjunctive and imperative", "Konjunktiv und Imperativ", "Subjuntivo e imperativo",  "Subjunctivus et imperativus")},
    Caption{"InclPassive",     englishToo("Passive",                    "Passiv",                   "Pasivo",                   "Passivum")},
    Caption{"InclNote",    englishToo("None of this can be asked. Choose more:", "Davon kann nichts abgefragt werden.", "De esto no se puede preguntar nada. Elija más:", "Nihil horum rogari potest. Elige plura:")},
};
// clang-format on

} // namespace

QuizInclude::QuizInclude()
    : FramedWindow("QuizInclude", "quizinclude", "CIBigFrame"), note_(shell::makeLabel(frame(), "InclNote")),
      ticks_(new QWidget(frame())), scrolled_(new shell::ContentArea(ticks_, frame())),
      classFrame_(makeControl<QGroupBox>(ticks_, "ConjFrame")),
      tenseFrame_(makeControl<QGroupBox>(ticks_, "TenseFrame"))
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
    shell::applyDesignedCaptions(*this, Captions);
}

void QuizInclude::makeControls()
{
    for (std::size_t i = 0; i < classes_.size(); ++i)
        classes_.at(i) = makeControl<QCheckBox>(classFrame_, QStringLiteral("InclConj%1").arg(i));
    for (std::size_t i = 0; i < tenses_.size(); ++i)
        tenses_.at(i) = makeControl<QCheckBox>(tenseFrame_, QStringLiteral("InclTense%1").arg(i));
    all_ = makeButton(frame(), "InclInclude");
    none_ = makeButton(frame(), "InclClear");
    ok_ = makeButton(frame(), "InclQuiz");
    cancel_ = makeButton(frame(), "InclCancel");
}

void QuizInclude::layOut()
{
    QGridLayout* const classes = shell::gridOf(shell::LargeSpace, shell::HairSpace);
    for (int place = 0; QCheckBox* const box : classes_) {
        classes->addWidget(box, place / ClassColumns, place % ClassColumns);
        ++place;
    }
    classFrame_->setLayout(classes);

    layOutTenses();
    scrolled_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    shell::keepMeasure(*scrolled_, "height", [this](shell::Growth) {
        scrolled_->setMinimumHeight(FewestLines * fontMetrics().lineSpacing());
    });
    shell::setContent(ticks_, {}, shell::columnOf(shell::MediumSpace, {classFrame_, tenseFrame_}));
    shell::setContent(frame(), shell::FormMargins,
                      shell::columnOf(shell::MediumSpace,
                                      {note_, scrolled_, shell::buttonRow({all_, none_}, {ok_, cancel_}),
                                       shell::Part::gap()}));
}

void QuizInclude::layOutTenses()
{
    QBoxLayout* const columns = shell::rowOf(shell::WideSpace, {});
    for (std::size_t next = 0; const auto& [heading, last] : TenseColumns) {
        QBoxLayout* const column =
            shell::columnOf(shell::HairSpace, {shell::makeHeading(tenseFrame_, heading, 1)});
        while (next < last)
            column->addWidget(tenses_.at(next++));
        column->addStretch();
        columns->addLayout(column);
    }
    tenseFrame_->setLayout(columns);
}

void QuizInclude::connectControls()
{
    for (const QCheckBox* const box : classes_)
        connect(box, &QCheckBox::clicked, this, &QuizInclude::storeAtOnce);
    connect(ok_, &QPushButton::clicked, this, &QuizInclude::take);
    connect(all_, &QPushButton::clicked, this, [this] { showTicks(everyTick()); });
    connect(none_, &QPushButton::clicked, this, [this] { showTicks(noTick()); });
    connect(cancel_, &QPushButton::clicked, this, &QuizInclude::left);
}

void QuizInclude::open()
{
    note_->hide();
    appear();
}

void QuizInclude::openAsNothingCanBeAsked()
{
    note_->show();
    appear();
}

// What a window that is hidden holds within its parts tells it of no new size.
void QuizInclude::appear()
{
    shell::applyCaptions(*this, Captions);
    showTicks(ticksOfQuiz());
    for (QWidget* const part : std::initializer_list<QWidget*>{classFrame_, tenseFrame_, scrolled_})
        part->updateGeometry();
    fitFrame();
    showFrame();
    shell::setFocusInSight(*classes_.front());
}

QuizTicks QuizInclude::ticks() const
{
    QuizTicks ticks;
    std::ranges::transform(classes_, ticks.classes.begin(), &QCheckBox::isChecked);
    std::ranges::transform(tenses_, ticks.tenses.begin(), &QCheckBox::isChecked);
    return ticks;
}

void QuizInclude::showTicks(const QuizTicks& ticks)
{
    for (int row = 0; QCheckBox* const box : classes_)
        box->setChecked(ticks.classes[row++]);
    for (int row = 0; QCheckBox* const box : tenses_)
        box->setChecked(ticks.tenses[row++]);
}

// A click on a class takes all ticks over at once; a click on a tense waits for OK.
void QuizInclude::storeAtOnce()
{
    storeTicks(ticks());
    showTicks(ticksOfQuiz());
}

void QuizInclude::take()
{
    takeTicks(ticks());
    Q_EMIT chosen();
}

void QuizInclude::keyPressEvent(QKeyEvent* event)
{
    if (shell::isEnter(*event))
        take();
    else
        FramedWindow::keyPressEvent(event);
}

} // namespace verbdrills
