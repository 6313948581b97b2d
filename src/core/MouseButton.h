#pragma once

// Which mouse button an event came from, as every window's logic receives it.

namespace veyrant {

enum class MouseButton { Left, Right, Middle };

} // namespace veyrant
