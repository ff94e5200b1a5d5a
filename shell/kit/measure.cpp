#include "shell/kit/measure.h"

#include <QVariant>
#include <QWidget>

#include <utility>

namespace shell {

namespace {

constexpr auto GrowthProperty = "growth";

// Stands with its owner in the tree of a window, and goes with it.
class Measure : public QObject {
public:
    Measure(QObject& owner, const char* name) : QObject(&owner) { setObjectName(QLatin1String(name)); }

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

void takeMeasuresOf(const QObject& owner, Growth growth)
{
    for (QObject* const child : QObjectList(owner.children()))
        if (const auto* const measure = dynamic_cast<Measure*>(child))
            measure->take(growth);
        else
            takeMeasuresOf(*child, growth);
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
    takeMeasuresOf(window, growth);
}

} // namespace shell
