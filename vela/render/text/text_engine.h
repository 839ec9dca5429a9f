// What draws text, before there is any to draw.
#pragma once

namespace vela {

// Begins to open DirectWrite on a thread of its own: the system lists its fonts meanwhile, which takes longer
// than the making of a window. Without it, or before it is done, the first text waits. Once is enough.
void openTextEngine();

} // namespace vela
