#pragma once

#include "nouns/noun_paradigm.h"

#include <array>
#include <string_view>

namespace nouns {

/// Three columns that are declined together: three persons, or three genders.
inline constexpr int ColumnsOfGroup = 3;

/// The ten forms of three pronouns, case by case; ":" after a long vowel. An empty text: there is no such
/// form.
using PronounPage = std::array<std::array<std::string_view, ColumnsOfGroup>, CaseCount>;

// clang-format off

// ego, tu, and the reflexive, which has no nominative.
inline constexpr PronounPage EgoTuSe = {{
    // singular
    {"ego",     "tu:",     ""    },               // nominative
    {"mei:",    "tui:",    "sui:"},               // genitive
    {"mihi",    "tibi",    "sibi"},               // dative
    {"me:",     "te:",     "se:" },               // accusative
    {"me:",     "te:",     "se:" },               // ablative
    // plural
    {"no:s",    "vo:s",    ""    },               // nominative
    {"nostri:", "vestri:", "sui:"},               // genitive
    {"no:bi:s", "vo:bi:s", "sibi"},               // dative
    {"no:s",    "vo:s",    "se:" },               // accusative
    {"no:bi:s", "vo:bi:s", "se:" },               // ablative
}};

// is, ea, id.
inline constexpr PronounPage IsEaId = {{
    // singular
    {"is",     "ea",     "id"    },               // nominative
    {"eius",   "eius",   "eius"  },               // genitive
    {"ei:",    "ei:",    "ei:"   },               // dative
    {"eum",    "eam",    "id"    },               // accusative
    {"eo:",    "ea:",    "eo:"   },               // ablative
    // plural
    {"ii:",    "eae",    "ea"    },               // nominative
    {"eo:rum", "ea:rum", "eo:rum"},               // genitive
    {"ii:s",   "ii:s",   "ii:s"  },               // dative
    {"eo:s",   "ea:s",   "ea"    },               // accusative
    {"ii:s",   "ii:s",   "ii:s"  },               // ablative
}};

// hic, haec, hoc.
inline constexpr PronounPage HicHaecHoc = {{
    // singular
    {"hic",    "haec",   "hoc"   },               // nominative
    {"huius",  "huius",  "huius" },               // genitive
    {"huic",   "huic",   "huic"  },               // dative
    {"hunc",   "hanc",   "hoc"   },               // accusative
    {"ho:c",   "ha:c",   "ho:c"  },               // ablative
    // plural
    {"hi:",    "hae",    "haec"  },               // nominative
    {"ho:rum", "ha:rum", "ho:rum"},               // genitive
    {"hi:s",   "hi:s",   "hi:s"  },               // dative
    {"ho:s",   "ha:s",   "haec"  },               // accusative
    {"hi:s",   "hi:s",   "hi:s"  },               // ablative
}};

// ille, illa, illud.
inline constexpr PronounPage IlleIllaIllud = {{
    // singular
    {"ille",     "illa",     "illud"   },         // nominative
    {"illi:us",  "illi:us",  "illi:us" },         // genitive
    {"illi:",    "illi:",    "illi:"   },         // dative
    {"illum",    "illam",    "illud"   },         // accusative
    {"illo:",    "illa:",    "illo:"   },         // ablative
    // plural
    {"illi:",    "illae",    "illa"    },         // nominative
    {"illo:rum", "illa:rum", "illo:rum"},         // genitive
    {"illi:s",   "illi:s",   "illi:s"  },         // dative
    {"illo:s",   "illa:s",   "illa"    },         // accusative
    {"illi:s",   "illi:s",   "illi:s"  },         // ablative
}};

// qui, quae, quod.
inline constexpr PronounPage QuiQuaeQuod = {{
    // singular
    {"qui:",    "quae",    "quod"   },            // nominative
    {"cuius",   "cuius",   "cuius"  },            // genitive
    {"cui",     "cui",     "cui"    },            // dative
    {"quem",    "quam",    "quod"   },            // accusative
    {"quo:",    "qua:",    "quo:"   },            // ablative
    // plural
    {"qui:",    "quae",    "quae"   },            // nominative
    {"quo:rum", "qua:rum", "quo:rum"},            // genitive
    {"quibus",  "quibus",  "quibus" },            // dative
    {"quo:s",   "qua:s",   "quae"   },            // accusative
    {"quibus",  "quibus",  "quibus" },            // ablative
}};
// clang-format on

/// The groups in the order of the chooser.
inline constexpr std::array PronounPages = {EgoTuSe, IsEaId, HicHaecHoc, IlleIllaIllud, QuiQuaeQuod};

/// The form of a group, 0 to 4, in a column, 0 to 2, in a case, 1 to 10; empty where there is none.
constexpr std::string_view pronounForm(int group, int column, int inCase)
{
    const PronounPage& page = PronounPages.at(static_cast<std::size_t>(group));
    return page.at(static_cast<std::size_t>(inCase - NominativeSingular))
        .at(static_cast<std::size_t>(column));
}

} // namespace nouns
