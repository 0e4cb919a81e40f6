// The tables of texts, compiled once for all tests.
#include "telsx/object_tables.hpp"

const std::vector<support::Texts> support::valueTexts = {
#include "telsx/rows_values.def"
};
const std::vector<support::Texts> support::headerTexts = {
#include "telsx/rows_headers.def"
};
const std::vector<support::Sample> support::elementSamples = {
#include "telsx/rows_elements.def"
};
