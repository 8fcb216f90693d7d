#pragma once

/// Process-wide flags of the conflict windows: shared by every controller and every dialog of the
/// process, false at load. Main thread only.

// A window is open for a conflict of that kind: set before it opens, cleared by its OK button.
extern bool HAS_PAPERSIZE_CONFLICT;
extern bool HAS_PAGESPERSHEET_CONFLICT;
extern bool HAS_PRINTINBLACK_CONFLICT;
extern bool HAS_MIRROR_CONFLICT;
extern bool HAS_CARTINSTALLED_CONFLICT;
extern bool HAS_INKTOUSE_CONFLICT;

// Instructions for a conflict of that kind were shown: silences it for the rest of the pass.
extern bool HAS_PAPERSIZE_INSTRUCTION;
extern bool HAS_PAGESPERSHEET_INSTRUCTION;
extern bool HAS_PRINTINBLACK_INSTRUCTION;
extern bool HAS_MIRROR_INSTRUCTION;
extern bool HAS_CARTINSTALLED_INSTRUCTION;
extern bool HAS_INKTOUSE_INSTRUCTION;

// "Continue without resolving the conflict." was chosen: never cleared. Only the first is ever
// read.
extern bool IGNORE_IRONON_DRAFT_CONFLICT;
extern bool IGNORE_IRONON_PAGESPERSHEET_CONFLICT;
extern bool IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT;
extern bool IGNORE_MIRROR_ENVELOPE_CONFLICT;

namespace conflict {

void clearInstructionFlags();

} // namespace conflict
