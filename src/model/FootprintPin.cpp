#include "model/FootprintPin.h"

#include <utility>

FootprintPin::FootprintPin(
    Padstack* pinPadstack, AString pinName, geom::Point pinLocation, geom::Point pinDisplacement, double pinAngle)
    : name(std::move(pinName)), location(pinLocation), angle(pinAngle), displacement(pinDisplacement),
      padstack(pinPadstack) {}

int FootprintPin::GetSiblingPins(std::vector<FootprintPin*>& out) const {
    out = siblingPins;
    return static_cast<int>(out.size());
}
