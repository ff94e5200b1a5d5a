#pragma once

#include <QString>

namespace progress {

/// What was written, with the blanks seen that a reader would miss: before it, behind it, or one more within.
inline QString withBlanksSeen(QString written)
{
    for (qsizetype i = 0; i < written.size(); ++i) {
        const bool isAtAnEnd = i == 0 || i == written.size() - 1 || written.at(i + 1) == u' ';
        if (written.at(i) == u' ' && isAtAnEnd)
            written[i] = u'␣';
    }
    return written;
}

/// What was asked, whose last part no line breaks: a person, or a case with its number.
inline QString withLastPartWhole(QString asked)
{
    for (qsizetype i = asked.lastIndexOf(u',') + 2; i < asked.size(); ++i)
        if (asked.at(i) == u' ')
            asked[i] = QChar::Nbsp;
    return asked;
}

} // namespace progress
