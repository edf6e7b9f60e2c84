// Makes a large file for measurements by repeating the lines of a small one:
//   make_large_file elements SOURCE COUNT OUTPUT [FIRST]   an element file whose objects are called
//                                                          OBJECT FIRST, OBJECT FIRST + 1 ...
//   make_large_file lines SOURCE COUNT OUTPUT              the lines as they are
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "elements/element_record.h"

namespace {

using vyn::ElementField;
using vyn::FieldOf;

std::string ReadAll(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
    lines.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return lines;
}

void SetIdentifier(std::string& record, long number) {
  const vyn::RecordField& field = FieldOf(ElementField::Identifier);
  std::string identifier = "OBJECT " + std::to_string(number);
  identifier.resize(field.width, ' ');
  record.replace(field.offset, field.width, identifier);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 5) {
    std::fputs("usage: make_large_file elements|lines SOURCE COUNT OUTPUT [FIRST]\n", stderr);
    return 2;
  }
  const bool areElements = std::string(argv[1]) == "elements";
  const long count = std::atol(argv[3]);
  const long first = argc > 5 ? std::atol(argv[5]) : 0;
  const std::vector<std::string> lines = LinesOf(ReadAll(argv[2]));
  std::ofstream output(argv[4], std::ios::binary);
  for (long i = 0; i < count && !lines.empty(); ++i) {
    std::string line = lines[i % lines.size()];
    if (areElements) SetIdentifier(line, first + i);
    output << line;
  }
  return output.good() ? 0 : 1;
}
