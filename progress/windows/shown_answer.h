#pragma once

#include "shell/kit/text.h"

#include <QString>

namespace progress {

/// What was written, with all its blanks seen.
inline QString withBlanksSeen(const QString& written)
{
    return shell::withUnseenBlanksAs(written, u'␣');
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
