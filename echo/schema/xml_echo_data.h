// One echo option with its level. Part of the schema set; no settings string contains it.
#pragma once

#include "echo/schema/output_type.h"

#include <string>

namespace tiv::echo {

struct XMLEchoData {
    std::string m_literal;                 // the option's keyword
    OutPutType m_output = DEFAULT_OUTPUT;  // its level
};

constexpr auto describe(const XMLEchoData*) {
    return bond::record<XMLEchoData>("tiv.echo.XMLEchoData",
        bond::field("m_literal", &XMLEchoData::m_literal),
        bond::field("m_output", &XMLEchoData::m_output));
}

}  // namespace tiv::echo
