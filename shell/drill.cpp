#include "shell/drill.h"

#include "shell/score.h"
#include "shell/settings.h"

#include <functional>
#include <map>

namespace shell {

namespace {

std::map<std::string, Drill*, std::less<>> drills;
Stay stay = Stay::begun();

void beginStay()
{
    stay.end();
    stay = Stay::begun();
}

} // namespace

void registerDrill(std::string_view exerciseType, Drill& drill)
{
    drills[std::string(exerciseType)] = &drill;
}

void unregisterDrill(std::string_view exerciseType)
{
    drills.erase(std::string(exerciseType));
}

Drill* runningDrill()
{
    const auto found = drills.find(settings.ExerciseType);
    return found == drills.end() ? nullptr : found->second;
}

void beginDrill(std::string_view exerciseType)
{
    beginStay();
    settings.ExerciseType = exerciseType;
    resetScore();
}

void leaveDrill()
{
    beginStay();
}

void endPause()
{
    beginStay();
}

Stay drillStay()
{
    return stay;
}

} // namespace shell
