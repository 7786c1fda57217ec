#pragma once

namespace orvanta {

/// What a player is for: a `Film` player's pictures are shown, a `Sound` player's are left aside.
enum class PlayerKind { Sound, Film };

}  // namespace orvanta
