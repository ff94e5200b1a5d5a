#include "progress/windows/cell_model.h"

#include "progress/grammar_names.h"
#include "progress/windows/shade.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/text.h"
#include "shell/language_texts.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace progress {

using shell::LanguageTexts;

namespace {

// clang-format off
//                              English                               French                                    Italian German                               Spanish                                 Latin
constexpr LanguageTexts ShareInWords{"%1 percent right, %2 of %3 answers", "%1 pour cent justes, %2 réponses sur %3", {}, "%1 Prozent richtig, %2 von %3 Antworten", "%1 por ciento bien, %2 de %3 respuestas", "%1 centesimae rectae, %2 ex %3 responsis"};
constexpr LanguageTexts NotAsked{"not asked yet",                     "pas encore demandé",                     {},     "noch nicht gefragt",                "aún no preguntado",                    "nondum quaesitum"};
// clang-format on

double partRight(const Share& share)
{
    return static_cast<double>(share.right) / share.answered;
}

bool areOfWords(const std::vector<Cell>& cells)
{
    return !cells.empty() && cells.front().name.grid == Grid::Words;
}

// The names of columns or of rows, each once, in the order in which they are to stand.
std::vector<std::string> namesIn(const std::vector<Cell>& cells, std::string CellName::*part)
{
    std::vector<std::string> names;
    std::unordered_set<std::string> known;
    for (const Cell& cell : cells)
        if (known.insert(cell.name.*part).second)
            names.push_back(cell.name.*part);
    if (!areOfWords(cells))
        sortAsInGrammar(names);
    return names;
}

std::unordered_map<std::string, int> numbered(const std::vector<std::string>& names)
{
    std::unordered_map<std::string, int> numbers;
    for (const std::string& name : names)
        numbers.emplace(name, static_cast<int>(numbers.size()));
    return numbers;
}

QString inLines(const QString& heading, int characters)
{
    QString lines;
    qsizetype begin = 0;
    for (const QString& word : heading.split(u' ')) {
        const bool fits = lines.size() + 1 + word.size() - begin <= characters;
        if (!lines.isEmpty())
            lines += fits ? u' ' : u'\n';
        if (!fits)
            begin = lines.size();
        lines += word;
    }
    return lines;
}

} // namespace

void CellModel::show(const std::vector<Cell>& cells)
{
    beginResetModel();
    const auto columns = namesIn(cells, &CellName::column);
    const auto rows = namesIn(cells, &CellName::row);
    const bool ofWords = areOfWords(cells);
    columns_.clear();
    rows_.clear();
    for (const std::string& column : columns)
        columns_ << shell::fromUtf8(ofWords ? column : inLanguageShown(column));
    for (const std::string& row : rows)
        rows_ << (ofWords ? shell::latinText(row) : shell::fromUtf8(inLanguageShown(row)));
    headings_ = columns_;
    cells_.clear();
    const auto columnNumbers = numbered(columns);
    const auto rowNumbers = numbered(rows);
    for (const Cell& cell : cells)
        cells_.emplace(Place(rowNumbers.at(cell.name.row), columnNumbers.at(cell.name.column)), cell);
    endResetModel();
}

void CellModel::joinHeadings()
{
    setHeadings(columns_);
}

void CellModel::breakHeadings(int characters)
{
    QStringList broken;
    for (const QString& column : columns_)
        broken << inLines(column, characters);
    setHeadings(broken);
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
    return columns_.at(place.column()) + QStringLiteral(", ") + rows_.at(place.row());
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
    return orientation == Qt::Horizontal ? headings_.at(section) : rows_.at(section);
}

void CellModel::setHeadings(QStringList headings)
{
    headings_ = std::move(headings);
    if (!headings_.isEmpty())
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
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
