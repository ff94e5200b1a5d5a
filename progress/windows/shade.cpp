#include "progress/windows/shade.h"

#include <QGuiApplication>
#include <QPalette>

#include <cmath>

namespace progress {

namespace {

constexpr double Palest = 0.12;
constexpr double HalfWay = 0.5;

// At this luminance black and white differ from a colour alike.
constexpr double MiddleLuminance = 0.179;

double mixed(double from, double to, double part)
{
    return from + (to - from) * part;
}

QColor between(const QColor& from, const QColor& to, double part)
{
    return QColor::fromRgbF(static_cast<float>(mixed(from.redF(), to.redF(), part)),
                            static_cast<float>(mixed(from.greenF(), to.greenF(), part)),
                            static_cast<float>(mixed(from.blueF(), to.blueF(), part)));
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace

QColor shadeOf(double share)
{
    const QPalette palette = QGuiApplication::palette();
    const QColor ground = palette.color(QPalette::Active, QPalette::Base);
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    return between(ground, accent, mixed(Palest, 1, share));
}

QColor outlineColour()
{
    const QPalette palette = QGuiApplication::palette();
    return between(palette.color(QPalette::Active, QPalette::Base),
                   palette.color(QPalette::Active, QPalette::Text), HalfWay);
}

QColor readableOn(const QColor& colour)
{
    const double luminance =
        0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    return luminance > MiddleLuminance ? Qt::black : Qt::white;
}

} // namespace progress
