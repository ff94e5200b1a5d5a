#pragma once

namespace verbs {

/// Writes the title of the current class and all 21 tense titles into `verbTables`, in the language of the
/// interface, and what the drill's window shows of the current ones into `currentParadigm`: the window title
/// and the tense label; for esse and velle an empty window title and the verb label. An unknown language, and
/// ferre, leave the titles as they were.
void setParadigmTitles();

} // namespace verbs
