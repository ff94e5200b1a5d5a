#include "tables/windows/words_model.h"

#include "shell/kit/latin_text.h"
#include "shell/kit/text.h"
#include "shell/macrons.h"
#include "shell/vowel_marks.h"

namespace tables {

namespace {

QString lettersOf(const QString& text)
{
    return shell::fromUtf8(shell::withoutMarks(shell::marksForMacrons(text.toLower().toStdString())));
}

} // namespace

std::vector<WordsModel::Group> WordsModel::named(const std::vector<WordGroup>& groups)
{
    std::vector<Group> named;
    for (const WordGroup& group : groups) {
        QStringList names;
        for (const Word& word : group.words)
            names << shell::latinText(listedName(word));
        named.push_back({shell::fromUtf8(group.title), names});
    }
    return named;
}

bool WordsModel::isOutOfDate() const
{
    const std::vector<WordGroup> words = listedWords();
    return !std::ranges::equal(words, words_, {}, &WordGroup::words, &WordGroup::words) ||
           named(words) != names_;
}

void WordsModel::list()
{
    words_ = listedWords();
    names_ = named(words_);
    clear();
    for (const auto& [title, names] : names_) {
        auto* const group = new QStandardItem(title);
        group->setToolTip(title);
        for (const QString& name : names) {
            auto* const word = new QStandardItem(name);
            word->setToolTip(QStringLiteral("<span>%1</span>").arg(name.toHtmlEscaped()));
            group->appendRow(word);
        }
        appendRow(group);
    }
}

std::optional<Word> WordsModel::wordAt(const QModelIndex& index) const
{
    if (!index.parent().isValid())
        return {};
    const WordGroup& group = words_.at(static_cast<std::size_t>(index.parent().row()));
    return group.words.at(static_cast<std::size_t>(index.row()));
}

QModelIndex WordsModel::indexOf(const Word& word) const
{
    for (int group = 0; group < rowCount(); ++group) {
        const std::vector<Word>& words = words_.at(static_cast<std::size_t>(group)).words;
        const auto found = std::ranges::find(words, word);
        if (found != words.end())
            return index(static_cast<int>(found - words.begin()), 0, index(group, 0));
    }
    return {};
}

WordsFilter::WordsFilter(QObject* parent) : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void WordsFilter::setTyped(const QString& typed)
{
    letters_ = lettersOf(typed.trimmed());
    invalidateFilter();
}

// A group comes in by its words: the model word in its title stands for itself.
bool WordsFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex word = sourceModel()->index(row, 0, parent);
    return parent.isValid() && lettersOf(word.data().toString()).contains(letters_);
}

} // namespace tables
