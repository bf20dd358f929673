// The libFuzzer target of the parser that SONOTIK_PARSER names.
#include <algorithm>
#include <string_view>

#include "fuzz/parsers.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const sonotik::Parser& parser =
      *std::find_if(std::begin(sonotik::kParsers), std::end(sonotik::kParsers),
                    [](const auto& p) { return std::string_view(p.name) == SONOTIK_PARSER; });
  sonotik::Survives(parser, {data, size});
  return 0;
}
