#pragma once

/// The layouts of the dialogs about procedures, as texts that end in a NUL. Their sources are the files of
/// procedures/dialogs/documents.
extern "C" {
extern const char chooseProcedureLandscapeLayout[];
extern const char chooseProcedurePortraitLayout[];
extern const char approachLandscapeLayout[];
extern const char approachPortraitLayout[];
extern const char holdingLandscapeLayout[];
extern const char holdingPortraitLayout[];
extern const char interceptLandscapeLayout[];
extern const char interceptPortraitLayout[];
extern const char generalProcedureLandscapeLayout[];
extern const char generalProcedurePortraitLayout[];
}
