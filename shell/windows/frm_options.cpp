#include "shell/windows/frm_options.h"

#include "platform/platform.h"
#include "platform/printed_number.h"
#include "shell/delay.h"
#include "shell/kit/captions.h"
#include "shell/kit/choice_box.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "shell/kit/text_size.h"
#include "shell/kit/type.h"
#include "shell/looks.h"
#include "shell/looks_file.h"
#include "shell/settings.h"
#include "shell/windows/main_menu_items.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>
#include <QTabBar>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace shell {

namespace {

// The places of the frames, given as 210 and -20000 at 15 to a pixel.
constexpr int LeftOfChosenFrame = 210 / 15;
constexpr int LeftOfOtherFrames = -20000 / 15;

constexpr int ButtonCharacters = 16;

// clang-format off
constexpr std::array Captions = {
    //                       English                   French                      Italian                   German                       Spanish                         Latin
    Caption{"frmOptions",   {"Options",                "Options",                  "Opzioni",                "Optionen",                  "Opciones",                     "Optiones"}},
    Caption{"cmdOK",        {"&OK",                    "&Oui",                     "&OK",                    "&OK",                       "&Si",                          "&Ita"}},
    Caption{"cmdCancel",    {"&Cancel",                "&Annuler",                 "&Annulla",               "&Abbruch",                  "&Cancelar",                    "&Reverte!"}},
    Caption{"cmdApply",     {"A&pply",                 "A&ppliquer",               "A&pplica",               "Über&nehmen",               "A&plicar",                     "A&dhibe!"}},
    Caption{"GODelayNote",  {"It is set in the options menu.", "Elle se règle dans le menu Options.", "Si imposta nel menu Options.", "Eingestellt wird sie im Menü Optionen.", "Se ajusta en el menú Opciones.", "In indice Optiones constituitur."}},
    Caption{"GODelayLabel", {"Pause after an answer:", "Pause après une réponse :", "Pausa dopo una risposta:", "Pause nach einer Antwort:", "Pausa después de una respuesta:", "Mora post responsum:"}},
    Caption{"GOOrderNote",  {"They are set in the options menu.", "Ils se règlent dans le menu Options.", "Si impostano nel menu Options.", "Eingestellt werden sie im Menü Optionen.", "Se ajustan en el menú Opciones.", "In indice Optiones constituuntur."}},
    Caption{"TextSizeLabel", {"&Text size (Ctrl and +, -, 0):", "&Taille du texte (Ctrl et +, -, 0) :", "&Dimensione del testo (Ctrl e +, -, 0):", "&Schriftgröße (Strg und +, -, 0):", "&Tamaño del texto (Ctrl y +, -, 0):", "&Magnitudo litterarum (Ctrl et +, -, 0):"}},
    Caption{"ShowMacrons",  {"Show &macrons: ā, not a:", "&Macrons : ā et non a:",  "&Macron: ā e non a:",    "&Längenstriche: ā statt a:", "&Macrones: ā y no a:",         "&Lineolas ostende: ā pro a:"}},
};

constexpr std::array Tabs = {
    LanguageTexts{           "Pause",                  "Pause",                    "Pausa",                  "Pause",                     "Pausa",                        "Mora"},
    LanguageTexts{           "Order",                  "Ordre",                    "Ordine",                 "Ordnung",                   "Orden",                        "Ordo"},
    LanguageTexts{           "Display",                "Affichage",                "Schermo",                "Anzeige",                   "Pantalla",                     "Aspectus"},
};
// clang-format on

// A text of the main window, as a label bears it: without its access key and the dots after it.
QString mainMenuText(std::string_view control)
{
    const auto menu = mainMenuCaptions();
    const auto row = std::ranges::find(menu, control, &Caption::control);
    if (row == menu.end())
        throw std::logic_error("the main window has no caption of " + std::string(control));
    QString text = fromUtf8(row->texts.currentOrDesigned());
    text.remove(u'&');
    return text.endsWith(QStringLiteral("...")) ? text.chopped(3) : text;
}

} // namespace

FrmOptions::FrmOptions() : Window("frmOptions"), space_(new QWidget(this))
{
    setWindowModality(Qt::ApplicationModal);
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void FrmOptions::makeControls()
{
    tabs_ = makeControl<QTabBar>(this, "tbsOptions");
    tabs_->setExpanding(false);
    for (std::size_t tab = 0; tab < Tabs.size(); ++tab) {
        tabs_->addTab(QString());
        frames_.push_back(makeControl<QFrame>(this, QStringLiteral("picOptions%1").arg(tab)));
        frames_.back()->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    }
    fillDelayFrame(*frames_.front());
    fillOrderFrame(*frames_.at(1));
    fillDisplayFrame(*frames_.back());
    ok_ = makeButton(this, "cmdOK");
    cancel_ = makeButton(this, "cmdCancel");
    apply_ = makeButton(this, "cmdApply");
    for (QPushButton* const button : {ok_, cancel_, apply_})
        setLeastWidth(*button, ButtonCharacters);
}

void FrmOptions::fillDelayFrame(QFrame& frame)
{
    auto* const page = makeControl<QWidget>(&frame, "OptionsTab");
    slider_ = makeControl<QSlider>(page, "GODelaySlider");
    slider_->setOrientation(Qt::Horizontal);
    slider_->setRange(0, LongestDelay);
    slider_->setEnabled(false); // sic: it shows what the menu sets
    delay_ = makeLabel(page, {}, HeadingType);
    page->setLayout(columnOf(MediumSpace, {makeLabelOf(slider_, "GODelayLabel"), delay_, slider_,
                                           makeLabel(page, "GODelayNote"), Part::gap()}));
    frame.setLayout(columnOf(0, {page}));
}

void FrmOptions::fillOrderFrame(QFrame& frame)
{
    auto* const rows = new QFormLayout;
    rows->setSpacing(MediumSpace);
    for (int row = 0; row < 2; ++row) {
        orders_.push_back(makeLabel(&frame, {}));
        orders_.push_back(makeLabel(&frame, {}));
        rows->addRow(orders_.at(orders_.size() - 2), orders_.back());
    }
    rows->addRow(makeLabel(&frame, "GOOrderNote"));
    setContent(&frame, FormMargins, rows);
}

void FrmOptions::fillDisplayFrame(QFrame& frame)
{
    auto* const page = makeControl<QWidget>(&frame, "OptionsDisplay");
    textSize_ = makeControl<ChoiceBox>(page, "TextSize");
    for (const int size : TextSizes)
        textSize_->addItem(QStringLiteral("%1 %").arg(size), size);
    macrons_ = makeControl<QCheckBox>(page, "ShowMacrons");
    page->setLayout(columnOf(
        MediumSpace,
        {makeLabelOf(textSize_, "TextSizeLabel"), {textSize_, 0, Qt::AlignLeft}, macrons_, Part::gap()}));
    setContent(&frame, FormMargins, columnOf(0, {page}));
}

void FrmOptions::layOut()
{
    constexpr QMargins margins{LeftOfChosenFrame, MediumSpace, LeftOfChosenFrame, LargeSpace};
    setContent(
        this, margins,
        columnOf(0, {tabs_, {space_, 1}, Part::space(LargeSpace), buttonRow({}, {ok_, cancel_, apply_})}));
}

void FrmOptions::connectControls()
{
    connect(tabs_, &QTabBar::currentChanged, this, &FrmOptions::placeFrames);
    connect(textSize_, &QComboBox::currentIndexChanged, this, &FrmOptions::chooseTextSizeInRow);
    connect(macrons_, &QCheckBox::toggled, this, &FrmOptions::switchMacrons);
    connect(ok_, &QPushButton::clicked, this, &FrmOptions::confirm);
    connect(cancel_, &QPushButton::clicked, this, &FrmOptions::left);
    connect(apply_, &QPushButton::clicked, this, &FrmOptions::apply);
    const auto* const next = new QShortcut(Qt::CTRL | Qt::Key_Tab, this);
    connect(next, &QShortcut::activated, this, [this] { turnPages(1); });
    const auto* const previous = new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, this);
    connect(previous, &QShortcut::activated, this, [this] { turnPages(-1); });
}

void FrmOptions::open()
{
    showCaptions();
    showSettings();
    showLooks();
    tabs_->setCurrentIndex(0);
    tabs_->setFocus();
    fitFrames();
    showInFront();
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void FrmOptions::showCaptions()
{
    applyCurrentOrDesignedCaptions(*this, Captions);
    for (std::size_t tab = 0; tab < Tabs.size(); ++tab)
        tabs_->setTabText(static_cast<int>(tab), fromUtf8(Tabs.at(tab).currentOrDesigned()));
    tabs_->setAccessibleName(windowTitle());
}

void FrmOptions::showSettings()
{
    slider_->setValue(settings.DelaySeconds);
    showDelay();
    const bool random = settings.QuestionOrder == question_order::Random;
    const bool accusativeSecond = settings.CaseOrder == case_order::NAGDAb;
    const std::array texts = {
        mainMenuText("OrderMenu"), mainMenuText(random ? "RandomOrder" : "SequentialOrder"),
        mainMenuText("CaseOrderMenu"), mainMenuText(accusativeSecond ? "NADGABOrder" : "NGDAABOrder")};
    for (std::size_t i = 0; i < texts.size(); ++i)
        orders_.at(i)->setText(texts.at(i));
}

void FrmOptions::showLooks()
{
    textSize_->setCurrentIndex(textSize_->findData(looks.TextSize));
    macrons_->setChecked(looks.ShowMacrons);
}

void FrmOptions::showDelay()
{
    delay_->setText(fromUtf8(platform::printedNumber(settings.DelaySeconds) + " s"));
}

void FrmOptions::fitFrames()
{
    QSize largest;
    for (const QFrame* const frame : frames_)
        largest = largest.expandedTo(frame->sizeHint());
    space_->setMinimumSize(largest);
    fitContent();
    placeFrames();
}

void FrmOptions::placeFrames()
{
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        QFrame* const frame = frames_.at(i);
        const bool chosen = static_cast<int>(i) == tabs_->currentIndex();
        frame->setGeometry(space_->geometry());
        frame->move(chosen ? LeftOfChosenFrame : LeftOfOtherFrames, space_->y());
        frame->setEnabled(chosen);
    }
}

void FrmOptions::turnPages(int pages)
{
    tabs_->setCurrentIndex((tabs_->currentIndex() + pages + tabs_->count()) % tabs_->count());
    tabs_->setFocus();
}

void FrmOptions::chooseTextSizeInRow(int row)
{
    chooseTextSize(textSize_->itemData(row).toInt());
}

void FrmOptions::switchMacrons(bool shown)
{
    if (shown == looks.ShowMacrons)
        return;
    looks.ShowMacrons = shown;
    keepLooks();
}

void FrmOptions::apply()
{
    platform::current().showMessage("Place code here to set options w/o closing dialog!");
}

void FrmOptions::confirm()
{
    platform::current().showMessage("Place code here to set options and close dialog!",
                                    [window = QPointer<FrmOptions>(this)] {
                                        if (window != nullptr)
                                            Q_EMIT window->left();
                                    });
}

// The controls hear of another font one after the other; all have it when the event is over.
void FrmOptions::changeEvent(QEvent* event)
{
    Window::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    showLooks();
    QMetaObject::invokeMethod(this, &FrmOptions::fitFrames, Qt::QueuedConnection);
}

void FrmOptions::resizeEvent(QResizeEvent* event)
{
    Window::resizeEvent(event);
    layout()->activate();
    placeFrames();
}

} // namespace shell
