#include "progress/windows/progress.h"

#include "platform/file_replacement.h"
#include "platform/platform.h"
#include "progress/calendar.h"
#include "progress/csv.h"
#include "progress/keeper.h"
#include "progress/windows/cell_model.h"
#include "progress/windows/cell_table.h"
#include "progress/windows/forms_table.h"
#include "progress/windows/practice_days.h"
#include "shell/kit/captions.h"
#include "shell/kit/choice_box.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace progress {

using shell::Caption;
using shell::fromUtf8;
using shell::LanguageTexts;
using shell::Part;

namespace {

constexpr QSize LargestBlock{190, 48};

constexpr auto OfferedName = "progress.csv";
constexpr auto OfferedKind = "CSV (*.csv)";

// clang-format off
constexpr std::array Captions = {
    //                           English             French                  Italian German                     Spanish                     Latin
    Caption{"Progress",          {"Progress",        "Progrès",              {},     "Fortschritt",             "Progreso",                 "Progressus"}},
    Caption{"ProgressKindLabel", {"&Show",           "&Montrer",             {},     "&Anzeigen",               "&Mostrar",                 "&Ostende"}},
    Caption{"ProgressKeep",      {"&Keep my answers", "&Garder mes réponses", {},    "Antworten auf&bewahren",  "&Guardar mis respuestas",  "Responsa &serva"}},
    Caption{"ProgressExport",    {"E&xport...",      "E&xporter...",         {},     "E&xportieren...",         "E&xportar...",             "E&xscribe..."}},
    Caption{"ProgressDelete",    {"&Delete...",      "&Supprimer...",        {},     "&Löschen...",             "&Borrar...",               "&Dele..."}},
    Caption{"ProgressReview",    {"&Review",         "&Réviser",             {},     "&Wiederholen",            "&Repasar",                 "Re&pete!"}},
    Caption{"ProgressClose",     {"&Close",          "&Fermer",              {},     "&Schließen",              "&Cerrar",                  "&Claude"}},
};

// In the order of `Grids`.
constexpr std::array Kinds = {
    LanguageTexts{"Tenses by class",   "Temps par classe",   {}, "Zeitformen nach Konjugation", "Tiempos por clase",   "Tempora per coniugationes"},
    LanguageTexts{"Cases by paradigm", "Cas par paradigme",  {}, "Kasus nach Paradigma",        "Casos por paradigma", "Casus per paradigmata"},
    LanguageTexts{"Words by list",     "Mots par liste",     {}, "Wörter nach Liste",           "Palabras por lista",  "Verba per indices"},
};

constexpr LanguageTexts Nothing{"Nothing has been answered here yet.", "Il n'y a encore aucune réponse ici.", {}, "Hier ist noch nichts beantwortet.", "Aquí aún no hay respuestas.", "Nihil hic adhuc responsum est."};
constexpr LanguageTexts Unreadable{"The answers cannot be read now.", "Les réponses ne peuvent pas être lues maintenant.", {}, "Die Antworten lassen sich jetzt nicht lesen.", "Las respuestas no se pueden leer ahora.", "Responsa nunc legi non possunt."};
constexpr LanguageTexts YearInWords{"Days of practice in the last year: %1; answers: %2, right: %3.", "Jours d'exercice des douze derniers mois : %1 ; réponses : %2, justes : %3.", {}, "Übungstage in den letzten zwölf Monaten: %1; Antworten: %2, richtig: %3.", "Días de práctica del último año: %1; respuestas: %2, bien: %3.", "Dies exercitationis duodecim mensium proxime praeteritorum: %1; responsa: %2, recta: %3."};
constexpr LanguageTexts NotExported{"The answers were not exported.", "Les réponses n'ont pas été exportées.", {}, "Die Antworten wurden nicht exportiert.", "Las respuestas no se exportaron.", "Responsa non exscripta sunt."};
// clang-format on

static_assert(Kinds.size() == Grids.size());

} // namespace

Progress::Progress() : Window("Progress", "progress")
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void Progress::makeControls()
{
    kind_ = shell::makeControl<shell::ChoiceBox>(this, "ProgressKind");
    kind_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    kindLabel_ = shell::makeLabelOf(kind_, "ProgressKindLabel");
    nothing_ = shell::makeLabel(this, "ProgressNothing", shell::SentenceType);
    grid_ = shell::makeControl<CellTable>(this, "ProgressGrid");
    cells_ = grid_->cells();
    forms_ = shell::makeControl<FormsTable>(this, "ProgressForms");
    cellName_ = shell::makeLabelOf(forms_, "ProgressCell");
    shell::setBoldType(*cellName_, 1);
    daysInWords_ = shell::makeLabel(this, "ProgressDaysLabel");
    shell::wrapText(*daysInWords_, 1);
    days_ = shell::makeControl<PracticeDays>(this, "ProgressDays");
    day_ = shell::makeLabel(this, "ProgressDay", shell::NoteType);
    keep_ = shell::makeControl<QCheckBox>(this, "ProgressKeep");
    export_ = shell::makeButton(this, "ProgressExport");
    delete_ = shell::makeButton(this, "ProgressDelete");
    review_ = shell::makeButton(this, "ProgressReview");
    close_ = shell::makeButton(this, "ProgressClose");
}

void Progress::layOut()
{
    QWidget* const block = centredBlock(LargestBlock);
    shell::setContent(block, shell::FormMargins,
                      shell::columnOf(shell::SmallSpace,
                                      {shell::rowOf(shell::SmallSpace, {kindLabel_, kind_, Part::gap(1)}),
                                       {nothing_, 1, Qt::AlignCenter},
                                       grid_,
                                       cellName_,
                                       {forms_, 1},
                                       Part::space(shell::SmallSpace),
                                       daysInWords_,
                                       days_,
                                       day_,
                                       Part::space(shell::SmallSpace),
                                       keep_,
                                       shell::buttonRow({export_, delete_}, {review_, close_})}));
}

void Progress::connectControls()
{
    connect(kind_, &QComboBox::activated, this, &Progress::showGrid);
    connect(grid_->selectionModel(), &QItemSelectionModel::currentChanged, this, &Progress::showForms);
    connect(grid_, &CellTable::clicked, this, [this] { growFor(*forms_); });
    shell::onEnter(*grid_, [this] { forms_->setFocus(); });
    connect(days_, &PracticeDays::dayChosen, day_, &QLabel::setText);
    connect(keep_, &QCheckBox::clicked, this, &Progress::keepingSwitched);
    connect(export_, &QPushButton::clicked, this, &Progress::chooseFile);
    connect(delete_, &QPushButton::clicked, this, &Progress::erasureRequested);
    connect(review_, &QPushButton::clicked, this, &Progress::reviewRequested);
    connect(close_, &QPushButton::clicked, this, &Progress::left);
}

void Progress::setCaptions()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    const int chosen = kind_->currentIndex();
    kind_->clear();
    for (const LanguageTexts& kind : Kinds)
        kind_->addItem(fromUtf8(kind));
    kind_->setCurrentIndex(std::max(chosen, 0));
}

void Progress::open(Keeper& keeper)
{
    keeper_ = &keeper;
    setCaptions();
    chooseGridWithAnswers();
    refresh();
    showInMainWindowState();
    if (grid_->isVisible())
        grid_->setFocus();
    else
        kind_->setFocus();
}

void Progress::refresh()
{
    Store* const store = keeper_->store();
    const bool hasAnswers = store != nullptr && store->lastRow() > 0;
    export_->setEnabled(hasAnswers);
    delete_->setEnabled(hasAnswers);
    keep_->setChecked(keeper_->keeps());
    showGrid();
    showDays();
}

Grid Progress::chosenGrid() const
{
    return Grids.at(static_cast<std::size_t>(kind_->currentIndex()));
}

// The grid that was chosen last, unless only another has answers.
void Progress::chooseGridWithAnswers()
{
    Store* const store = keeper_->store();
    if (store == nullptr || !store->cellsOf(chosenGrid()).empty())
        return;
    for (std::size_t kind = 0; kind < Grids.size(); ++kind)
        if (!store->cellsOf(Grids[kind]).empty()) {
            kind_->setCurrentIndex(static_cast<int>(kind));
            return;
        }
}

void Progress::showGrid()
{
    Store* const store = keeper_->store();
    cells_->show(store == nullptr ? std::vector<Cell>() : store->cellsOf(chosenGrid()));
    const QModelIndex worst = cells_->worst();
    nothing_->setText(fromUtf8(keeper_->isUnreadable() ? Unreadable : Nothing));
    nothing_->setVisible(!worst.isValid());
    for (QWidget* const part : std::initializer_list<QWidget*>{grid_, cellName_, forms_})
        part->setVisible(worst.isValid());
    grid_->setAccessibleName(kind_->currentText());
    grid_->fitCells();
    if (grid_->currentIndex() == worst)
        showForms();
    else
        grid_->setCurrentIndex(worst);
}

void Progress::showForms()
{
    const QModelIndex place = grid_->currentIndex();
    const Cell* const cell = cells_->cellAt(place);
    Store* const store = keeper_->store();
    cellName_->setText(place.isValid() ? cells_->nameAt(place).replace(u'&', QStringLiteral("&&"))
                                       : QString());
    forms_->showForms(cell == nullptr || store == nullptr ? std::vector<Form>() : store->formsOf(cell->name));
    // A window that moves under the mouse would choose another cell.
    if (QApplication::mouseButtons() == Qt::NoButton)
        growFor(*forms_);
}

void Progress::showDays()
{
    Store* const store = keeper_->store();
    const Day today = platform::localDay(platform::current().now());
    std::vector<DayOfPractice> year;
    if (store != nullptr)
        year = yearOfPractice(*store, today);
    int days = 0;
    Share all;
    for (const DayOfPractice& day : year) {
        days += day.share.answered > 0 ? 1 : 0;
        all.answered += day.share.answered;
        all.right += day.share.right;
    }
    daysInWords_->setText(fromUtf8(YearInWords).arg(days).arg(all.answered).arg(all.right));
    days_->setAccessibleName(daysInWords_->text());
    days_->setVisible(!year.empty());
    day_->setVisible(!year.empty());
    days_->showYear(std::move(year));
}

void Progress::chooseFile()
{
    platform::current().chooseFileToSave(OfferedName, {OfferedKind},
                                         [this](const std::string& file) { exportTo(file); });
}

// What could not be read to its end is no export.
void Progress::exportTo(const std::string& file)
{
    Store* const store = keeper_->store();
    const std::string lines = store == nullptr ? std::string() : csvOf(*store);
    const bool whole = store != nullptr && store->takeTrouble() == Trouble::None;
    std::string message(NotExported.currentOrDesigned());
    if (whole) {
        const auto fault = platform::replaceFile(file, lines);
        if (!fault)
            return;
        message += ' ' + fault->message();
    }
    platform::current().showMessage(message);
}

} // namespace progress
