#pragma once

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

/**
 * What there is to know about \a feature, as rich text. A line whose getter throws is left out; throws nothing. Texts
 * of the camera are escaped: a description that looks like markup is shown as it stands.
 */
QString genParamWhatsThis(const GenParamFeature &feature);
