#ifndef QRL_BENCHMARKS_FLOORS_H
#define QRL_BENCHMARKS_FLOORS_H

#include <cstddef>
#include <string_view>
#include <vector>

// The least that reading and writing can cost, as plain loops: what our own code is measured against.

/// The number of tokens of nested lists: parentheses, words and quoted strings.
size_t CountTokens(std::string_view text);

/// The sum of the whole numbers among the tokens.
size_t DecodeNumbers(std::string_view text);

/// Decodes the whole numbers among the tokens, prints each as millimetres to the same buffer, shortest form, and
/// returns the size of all these texts. One unit of the file is 1e-5 mm.
size_t PrintMillimetres(std::string_view text);

/// Prints every number to the same buffer, shortest form, and returns the size of all texts.
size_t PrintNumbers(const std::vector<double>& numbers);

#endif
