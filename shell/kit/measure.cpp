#include "shell/kit/measure.h"

#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace shell {

namespace {

constexpr auto GrowthProperty = "growth";

int keptSoFar = 0;

// Stands with its owner in the tree of a window, and goes with it.
class Measure : public QObject {
public:
    Measure(QObject& owner, const char* name) : QObject(&owner), number(++keptSoFar)
    {
        setObjectName(QLatin1String(name));
    }

    const int number;
    std::function<void(Growth)> take;
};

// A layout that stands in no window yet is not grown.
Growth growthOf(const QObject& owner)
{
    const QObject* top = &owner;
    while (top->parent() != nullptr)
        top = top->parent();
    const QVariant growth = top->property(GrowthProperty);
    return growth.isValid() ? growth.toDouble() : 1;
}

Measure* findMeasure(const QObject& owner, const char* name)
{
    for (QObject* const child : owner.children())
        if (auto* const measure = dynamic_cast<Measure*>(child))
            if (measure->objectName() == QLatin1String(name))
                return measure;
    return nullptr;
}

void findMeasuresOf(const QObject& owner, std::vector<const Measure*>& measures)
{
    for (const QObject* const child : owner.children())
        if (const auto* const measure = dynamic_cast<const Measure*>(child))
            measures.push_back(measure);
        else
            findMeasuresOf(*child, measures);
}

} // namespace

void keepMeasure(QObject& owner, const char* name, std::function<void(Growth)> take)
{
    take(growthOf(owner));
    Measure* measure = name == nullptr ? nullptr : findMeasure(owner, name);
    if (measure == nullptr)
        measure = new Measure(owner, name);
    measure->take = std::move(take);
}

void takeMeasures(QWidget& window, Growth growth)
{
    window.setProperty(GrowthProperty, growth);
    std::vector<const Measure*> measures;
    findMeasuresOf(window, measures);
    // A layout stands in the tree before the widgets in it, whose type it may depend on.
    std::ranges::sort(measures, {}, &Measure::number);
    for (const Measure* const measure : measures)
        measure->take(growth);
}

} // namespace shell
