#pragma once

class QString;
class QTextBrowser;

namespace shell {

/// Shows a guide. One that begins with a heading, "# ", is Markdown; a link to "#the-words-of-a-heading"
/// leads to that heading: its words in small letters, without signs, with hyphens between them. Any other
/// text is shown as it is.
void showGuideText(QTextBrowser& browser, const QString& text);

/// Goes to the beginning of the guide that is shown, and forgets which way the reader went.
void showBeginning(QTextBrowser& browser);

} // namespace shell
