#include "vocabulary/kvtml/kvtml_list.h"

#include <QXmlStreamReader>

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

// An entry without words has empty fields.
WordRecord recordOf(QXmlStreamReader& xml)
{
    Expression word;
    Expression translation;
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        const auto language = attributes.value(QLatin1String("id"));
        if (xml.name() != QLatin1String("translation"))
            xml.skipCurrentElement();
        else if (language == QLatin1String("0"))
            word = expressionOf(xml);
        else if (language == QLatin1String("1"))
            translation = expressionOf(xml);
        else
            xml.skipCurrentElement();
    }
    const QString hint = word.comment == translation.text ? QString() : word.comment;
    return {word.text.toStdString(), translation.text.toStdString(), hint.toStdString()};
}

} // namespace

KvtmlList readKvtml(std::string_view text)
{
    // As a QString the text is read whatever code page its first line names: it was decoded already.
    QXmlStreamReader xml(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    KvtmlList list;
    while (!xml.atEnd() && list.records.size() <= MostWordsRead) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("entry"))
            continue;
        WordRecord record = recordOf(xml);
        if (!xml.hasError() && !record.word.empty() && !record.translation.empty())
            list.records.push_back(std::move(record));
    }
    if (xml.hasError())
        list.brokenLine = static_cast<int>(xml.lineNumber());
    return list;
}

} // namespace vocabulary
