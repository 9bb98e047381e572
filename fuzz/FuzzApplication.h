// A GUI application for the targets that read pictures: a drawing's text
// takes fonts, and fonts take one. Offscreen, made once, kept for the run.
#pragma once

namespace Fuzz {

void ensureGuiApplication();

} // namespace Fuzz
