#include "progress/grid.h"

#include "shell/settings.h"

namespace progress {

namespace {

Grid gridOf(const std::string& exercise)
{
    if (exercise == shell::exercise::Conjugation || exercise == shell::exercise::Quiz)
        return Grid::Tenses;
    return exercise == shell::exercise::Vcabtester ? Grid::Words : Grid::Cases;
}

} // namespace

CellName cellOf(const Form& form)
{
    const Grid grid = gridOf(form.name.exercise);
    const auto parts = shell::partsOfPlace(form.name.place);
    return {.grid = grid, .column = parts[0], .row = grid == Grid::Words ? form.name.word : parts[1]};
}

} // namespace progress
