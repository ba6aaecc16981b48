#pragma once

#include <OrvCameraGuiApi/feature_tree/controldata.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

/**
 * A new editor that suits \a feature, without parent and without frame, set to its range and choices but not to its
 * value; the caller owns it. The editor is null for a feature of another kind than number, boolean, command, text or
 * enumeration. Passes on what the feature's getters throw.
 */
ControlData createGenParamEditor(const GenParamFeature &feature);
