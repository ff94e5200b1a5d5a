#include "progress/trouble.h"

#include "shell/language_texts.h"

namespace progress {

namespace {

// clang-format off
constexpr shell::LanguageTexts DamagedTexts = {
    .english = "progress.db was damaged: it has another name now, and a new one was begun.",
    .french  = "progress.db était endommagé : il porte un autre nom maintenant, et un nouveau a été commencé.",
    .italian = "progress.db era danneggiato: ora ha un altro nome, e ne è stato iniziato uno nuovo.",
    .german  = "progress.db war beschädigt: Die Datei heißt jetzt anders, und eine neue wurde begonnen.",
    .spanish = "progress.db estaba dañado: ahora tiene otro nombre, y se ha empezado uno nuevo.",
    .latin   = "progress.db corruptum erat: nunc aliud nomen habet, et novum inceptum est.",
};
constexpr shell::LanguageTexts NewerTexts = {
    .english = "progress.db comes from a newer version of this program: answers are not kept.",
    .french  = "progress.db vient d'une version plus récente de ce programme : les réponses ne sont pas gardées.",
    .italian = "progress.db viene da una versione più recente di questo programma: le risposte non sono conservate.",
    .german  = "progress.db stammt von einer neueren Version dieses Programms: Antworten werden nicht aufbewahrt.",
    .spanish = "progress.db viene de una versión más reciente de este programa: las respuestas no se guardan.",
    .latin   = "progress.db a recentiore huius programmatis editione venit: responsa non servantur.",
};
constexpr shell::LanguageTexts LockedTexts = {
    .english = "Another program holds progress.db: until it lets go, answers are not kept.",
    .french  = "Un autre programme occupe progress.db : d'ici là, les réponses ne sont pas gardées.",
    .italian = "Un altro programma occupa progress.db: nel frattempo le risposte non sono conservate.",
    .german  = "Ein anderes Programm hält progress.db fest: Solange werden Antworten nicht aufbewahrt.",
    .spanish = "Otro programa ocupa progress.db: mientras tanto, las respuestas no se guardan.",
    .latin   = "Aliud programma progress.db tenet: interea responsa non servantur.",
};
constexpr shell::LanguageTexts FullTexts = {
    .english = "progress.db cannot be written, the disk may be full: the answer was not kept.",
    .french  = "progress.db ne peut pas être écrit, le disque est peut-être plein : la réponse n'a pas été gardée.",
    .italian = "progress.db non può essere scritto, forse il disco è pieno: la risposta non è stata conservata.",
    .german  = "progress.db kann nicht geschrieben werden, vielleicht ist der Datenträger voll: Die Antwort wurde nicht aufbewahrt.",
    .spanish = "No se puede escribir progress.db, quizá el disco esté lleno: la respuesta no se ha guardado.",
    .latin   = "progress.db scribi non potest, fortasse discus plenus est: responsum servatum non est.",
};
// clang-format on

} // namespace

std::string_view sentenceFor(Trouble trouble)
{
    switch (trouble) {
    case Trouble::Damaged:
        return DamagedTexts.currentOrDesigned();
    case Trouble::Newer:
        return NewerTexts.currentOrDesigned();
    case Trouble::Locked:
        return LockedTexts.currentOrDesigned();
    case Trouble::Full:
        return FullTexts.currentOrDesigned();
    case Trouble::None:
    case Trouble::OtherTables:
    case Trouble::Unavailable:
        return {};
    }
    return {};
}

} // namespace progress
