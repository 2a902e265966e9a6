// SPDX-License-Identifier: Apache-2.0
// Commands: their start, and whether they are done.
#include "commandfeature_p.h"

#include "gerrorslot_p.h"
#include "nodeproperties_p.h"

#include <arv.h>

namespace Cameras::GenICam {

void startCommand(const Feature& feature)
{
    feature.requireWritable();
    GErrorSlot error;
    arv_gc_command_execute(ARV_GC_COMMAND(feature.node()), error);
    feature.check(error);
}

bool isCommandDone(const Feature& feature)
{
    feature.requireThere();
    const auto chain = valueChain(feature.node());
    if (chain.size() < 2 || !ARV_IS_GC_INTEGER(chain[1]) ||
        arv_gc_feature_node_get_actual_access_mode(chain[1]) == ARV_GC_ACCESS_MODE_WO)
        return true;
    GErrorSlot error;
    const qint64 number = arv_gc_integer_get_value(ARV_GC_INTEGER(chain[1]), error);
    feature.check(error);
    return number != commandValue(feature.node());
}

} // namespace Cameras::GenICam
