// The relations by which operations compare pixels, in the order of their codes.
#pragma once

namespace orv {

enum Relation : int { relation_less, relation_less_eq, relation_eq, relation_greater_eq, relation_greater };

}  // namespace orv
