#include "progress/windows/cell_model.h"

#include "progress/windows/shade.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/text.h"
#include "shell/language_texts.h"

#include <algorithm>
#include <unordered_map>

namespace progress {

using shell::LanguageTexts;

namespace {

// The length up to which a column's heading fills a line.
constexpr qsizetype HeadingCharacters = 12;

// clang-format off
//                              English                               French                                    Italian German                               Spanish                                 Latin
constexpr LanguageTexts ShareInWords{"%1 percent right, %2 of %3 answers", "%1 pour cent justes, %2 réponses sur %3", {}, "%1 Prozent richtig, %2 von %3 Antworten", "%1 por ciento bien, %2 de %3 respuestas", "%1 centesimae rectae, %2 ex %3 responsis"};
constexpr LanguageTexts NotAsked{"not asked yet",                     "pas encore demandé",                     {},     "noch nicht gefragt",                "aún no preguntado",                    "nondum quaesitum"};
// clang-format on

double partRight(const Share& share)
{
    return static_cast<double>(share.right) / share.answered;
}

// Numbers the names in the order in which they come.
class Numbers {
public:
    explicit Numbers(std::vector<std::string>& names) : names_(names) { names_.clear(); }

    int of(const std::string& name)
    {
        const auto [found, isNew] = numbers_.try_emplace(name, static_cast<int>(names_.size()));
        if (isNew)
            names_.push_back(name);
        return found->second;
    }

private:
    std::vector<std::string>& names_;
    std::unordered_map<std::string, int> numbers_;
};

QString inShortLines(const QString& heading)
{
    QString lines;
    qsizetype length = 0;
    for (const QString& word : heading.split(u' ')) {
        const bool fits = length == 0 || length + 1 + word.size() <= HeadingCharacters;
        if (!lines.isEmpty())
            lines += fits ? u' ' : u'\n';
        length = fits ? length + 1 + word.size() : word.size();
        lines += word;
    }
    return lines;
}

} // namespace

void CellModel::show(const std::vector<Cell>& cells)
{
    beginResetModel();
    cells_.clear();
    Numbers columns(columns_);
    Numbers rows(rows_);
    for (const Cell& cell : cells)
        cells_.emplace(Place(rows.of(cell.name.row), columns.of(cell.name.column)), cell);
    endResetModel();
}

const Cell* CellModel::cellAt(const QModelIndex& place) const
{
    const auto found = cells_.find({place.row(), place.column()});
    return found == cells_.end() ? nullptr : &found->second;
}

QModelIndex CellModel::worst() const
{
    const auto found = std::ranges::min_element(
        cells_, {}, [](const auto& placed) { return partRight(placed.second.share); });
    return found == cells_.end() ? QModelIndex() : index(found->first.first, found->first.second);
}

QString CellModel::nameAt(const QModelIndex& place) const
{
    return shell::fromUtf8(columns_.at(static_cast<std::size_t>(place.column()))) + QStringLiteral(", ") +
           shell::latinText(rows_.at(static_cast<std::size_t>(place.row())));
}

int CellModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CellModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant CellModel::data(const QModelIndex& place, int role) const
{
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole)
        return nameAt(place) + QStringLiteral(": ") + inWords(place);
    if (role == Qt::TextAlignmentRole)
        return int{Qt::AlignCenter};
    const Cell* const cell = cellAt(place);
    if (cell == nullptr)
        return {};
    if (role == Qt::DisplayRole)
        return shell::fromUtf8(textOf(cell->share));
    if (role == Qt::BackgroundRole)
        return shadeOf(partRight(cell->share));
    if (role == Qt::ForegroundRole)
        return readableOn(shadeOf(partRight(cell->share)));
    return {};
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    const auto number = static_cast<std::size_t>(section);
    if (orientation == Qt::Horizontal)
        return inShortLines(shell::fromUtf8(columns_.at(number)));
    return shell::latinText(rows_.at(number));
}

QString CellModel::inWords(const QModelIndex& place) const
{
    const Cell* const cell = cellAt(place);
    if (cell == nullptr)
        return shell::fromUtf8(NotAsked);
    const auto& [answered, right] = cell->share;
    const QString percent = shell::fromUtf8(textOf(cell->share)).section(u' ', 0, 0);
    return shell::fromUtf8(ShareInWords).arg(percent).arg(right).arg(answered);
}

} // namespace progress
