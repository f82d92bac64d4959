// SPDX-License-Identifier: MIT
#include "lists/plcopen_variables.h"

#include "lists/plcopen_unfolder.h"

namespace hx::lists {

void readPlcopenVariables(const std::string& path, const VariableLimits& limits, VariableReceiver& receiver) {
    const XmlDocument document(path);
    PlcopenUnfolder(document, limits, receiver).run();
}

}  // namespace hx::lists
