#pragma once

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

/** What there is to know about \a feature, as rich text. A line whose getter throws is left out; throws nothing. */
QString genParamWhatsThis(const GenParamFeature &feature);
