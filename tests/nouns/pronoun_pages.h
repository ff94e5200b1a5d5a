#pragma once

#include <array>

namespace tests {

// clang-format off
// Heading, singular, plural, column by column: nominative, genitive, dative, accusative, ablative. The reflexive has
// no nominative.
inline constexpr std::array<const char*, 3> PronounPages[] = {
    {"Personal Pronouns: ego, tu, ***",
     "ego mei: mihi me: me: tu: tui: tibi te: te: sui: sibi se: se:",
     "no:s nostri: no:bi:s no:s no:bi:s vo:s vestri: vo:bi:s vo:s vo:bi:s sui: sibi se: se:"},
    {"Demonstratives: is-ea-id (this/that)",
     "is eius ei: eum eo: ea eius ei: eam ea: id eius ei: id eo:",
     "ii: eo:rum ii:s eo:s ii:s eae ea:rum ii:s ea:s ii:s ea eo:rum ii:s ea ii:s"},
    {"Demonstratives: hic-haec-hoc (this)",
     "hic huius huic hunc ho:c haec huius huic hanc ha:c hoc huius huic hoc ho:c",
     "hi: ho:rum hi:s ho:s hi:s hae ha:rum hi:s ha:s hi:s haec ho:rum hi:s haec hi:s"},
    {"Demonstratives: ille-illa-illud (that)",
     "ille illi:us illi: illum illo: illa illi:us illi: illam illa: illud illi:us illi: illud illo:",
     "illi: illo:rum illi:s illo:s illi:s illae illa:rum illi:s illa:s illi:s illa illo:rum illi:s illa illi:s"},
    {"Relatives: qui-quae-quod (who/which)",
     "qui: cuius cui quem quo: quae cuius cui quam qua: quod cuius cui quod quo:",
     "qui: quo:rum quibus quo:s quibus quae qua:rum quibus qua:s quibus quae quo:rum quibus quae quibus"},
};
// clang-format on

} // namespace tests
