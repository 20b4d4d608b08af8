// The picture of the levels, as SVG: words played, and goes until the claim.
#pragma once

#include "tools/self_play/level_measures.h"

#include <ostream>
#include <span>

// One set of measures a level, from Level 1 on.
void DrawLevels(std::ostream& out, std::span<const LevelMeasures> levels);
