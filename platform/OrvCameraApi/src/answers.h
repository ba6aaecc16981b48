#pragma once

#include "genapierror.h"
#include "paramarray.h"

#include <OrvCameraApi/simulation.h>

namespace OrvCameraApi {

/** The text as an application gets it: valid as long as \a text. */
inline const char *textOf(const OrvSim::Text &text)
{
    return text ? text->c_str() : nullptr;
}

/** What a parameter operation answers where \a array is what it should. */
inline OrvGenParam::Array *parametersAs(OrvSim::Parameters parameters, ParamArray *array, OrvCamErr *err)
{
    using OrvSim::Parameters;
    const bool fails = parameters == Parameters::Error || parameters == Parameters::ArrayWithError;
    const bool gives = parameters == Parameters::Normal || parameters == Parameters::ArrayWithError;
    tell(err, fails ? OrvCamErr_GenICamTreeError : OrvCamErr_Ok);
    return gives ? array : nullptr;
}

} // namespace OrvCameraApi
