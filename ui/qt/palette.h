// The colours of the controls.
#pragma once

struct BuiltControl;

// Gives the control the palette of its colours; one without colours keeps the desktop's.
void GiveColours(const BuiltControl& control);
