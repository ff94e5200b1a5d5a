#include "vocabulary/kvtml/kvtml_list.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <map>
#include <ranges>
#include <set>
#include <utility>
#include <vector>

namespace vocabulary {

namespace {

// What an entry says of one language.
struct Expression {
    QString text;
    QString comment;
};

// However deep the tags within it stand in one another.
QString textOf(QXmlStreamReader& xml)
{
    QString text;
    for (int depth = 1; depth > 0 && !xml.atEnd();) {
        xml.readNext();
        if (xml.isStartElement())
            ++depth;
        else if (xml.isEndElement())
            --depth;
        else if (xml.isCharacters() || xml.isEntityReference())
            text += xml.text();
    }
    return text.simplified();
}

Expression expressionOf(QXmlStreamReader& xml)
{
    Expression expression;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("text"))
            expression.text = textOf(xml);
        else if (xml.name() == QLatin1String("comment"))
            expression.comment = textOf(xml);
        else
            xml.skipCurrentElement();
    }
    return expression;
}

// What an entry says, by the ids of the languages.
using Entry = std::map<int, Expression>;

Entry entryOf(QXmlStreamReader& xml)
{
    Entry entry;
    while (xml.readNextStartElement()) {
        bool isNumber = false;
        const int language = xml.attributes().value(QLatin1String("id")).toUShort(&isNumber);
        if (isNumber && xml.name() == QLatin1String("translation"))
            entry[language] = expressionOf(xml);
        else
            xml.skipCurrentElement();
    }
    return entry;
}

// The ids of the word's language, the translation's and the hint's; `NoLanguage` where there is none.
using Languages = std::array<int, WordFields.size()>;
constexpr int NoLanguage = -1;

Languages languagesOf(const std::vector<Entry>& entries)
{
    std::set<int> ids;
    for (const Entry& entry : entries)
        for (const auto& [id, expression] : entry)
            ids.insert(id);
    Languages languages;
    languages.fill(NoLanguage);
    std::ranges::copy(ids | std::views::take(languages.size()), languages.begin());
    return languages;
}

Expression expressionIn(const Entry& entry, int language)
{
    const auto found = entry.find(language);
    return found == entry.end() ? Expression{} : found->second;
}

WordRecord recordOf(const Entry& entry, const Languages& languages)
{
    const auto [first, second, third] = languages;
    const Expression word = expressionIn(entry, first);
    const QString translation = expressionIn(entry, second).text;
    QString hint = expressionIn(entry, third).text;
    if (hint.isEmpty() && word.comment != translation)
        hint = word.comment;
    return {word.text.toStdString(), translation.toStdString(), hint.toStdString()};
}

} // namespace

KvtmlList readKvtml(std::string_view text)
{
    // As a QString the text is read whatever code page its first line names: it was decoded already.
    QXmlStreamReader xml(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    std::vector<Entry> entries;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("entry"))
            continue;
        Entry entry = entryOf(xml);
        if (!xml.hasError() && !entry.empty())
            entries.push_back(std::move(entry));
    }
    KvtmlList list;
    for (const Languages languages = languagesOf(entries); const Entry& entry : entries) {
        WordRecord record = recordOf(entry, languages);
        if (!record.word.empty() && !record.translation.empty() && list.records.size() <= MostWordsRead)
            list.records.push_back(std::move(record));
    }
    if (xml.hasError())
        list.brokenLine = static_cast<int>(xml.lineNumber());
    return list;
}

} // namespace vocabulary
