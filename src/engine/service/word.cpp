#include "engine/service/word.h"

#include <algorithm>
#include <array>
#include <numbers>
#include <vector>

namespace tarnmill {
namespace {

struct SharedFunction {
  TextView name;
  TextView table_name;
};

// "sqrt" and the names with "cotan" are shortened by the rewriting chain in some of their spellings only, so
// both forms arrive here.
constexpr std::array shared_functions{
    SharedFunction{u"abs", u"ABS"},
    SharedFunction{u"arccos", u"ARCCOS"},
    SharedFunction{u"arccosec", u"ARCCOSEC"},
    SharedFunction{u"arccot", u"ARCCOTAN"},
    SharedFunction{u"arccotan", u"ARCCOTAN"},
    SharedFunction{u"arcsec", u"ARCSEC"},
    SharedFunction{u"arcsin", u"ARCSIN"},
    SharedFunction{u"atn", u"ATN"},
    SharedFunction{u"bin", u"BIN"},
    SharedFunction{u"cbr", u"CBR"},
    SharedFunction{u"cos", u"COS"},
    SharedFunction{u"cosec", u"COSEC"},
    SharedFunction{u"cot", u"COTAN"},
    SharedFunction{u"cotan", u"COTAN"},
    SharedFunction{u"cub", u"CUB"},
    SharedFunction{u"exp", u"EXP"},
    SharedFunction{u"fix", u"FIX"},
    SharedFunction{u"harccos", u"HARCCOS"},
    SharedFunction{u"harccosec", u"HARCCOSEC"},
    SharedFunction{u"harccot", u"HARCCOTAN"},
    SharedFunction{u"harccotan", u"HARCCOTAN"},
    SharedFunction{u"harcsec", u"HARCSEC"},
    SharedFunction{u"harcsin", u"HARCSIN"},
    SharedFunction{u"harctan", u"HARCTAN"},
    SharedFunction{u"hcos", u"HCOS"},
    SharedFunction{u"hcosec", u"HCOSEC"},
    SharedFunction{u"hcot", u"HCOTAN"},
    SharedFunction{u"hcotan", u"HCOTAN"},
    SharedFunction{u"hsec", u"HSEC"},
    SharedFunction{u"hsin", u"HSIN"},
    SharedFunction{u"htan", u"HTAN"},
    SharedFunction{u"int", u"INT"},
    SharedFunction{u"ln", u"LN"},
    SharedFunction{u"log", u"LOG"},
    SharedFunction{u"nil", u"NIL"},
    SharedFunction{u"pbr", u"PBR"},
    SharedFunction{u"pnt", u"PNT"},
    SharedFunction{u"qvd", u"QVD"},
    SharedFunction{u"qvr", u"QVR"},
    SharedFunction{u"rnd", u"RND"},
    SharedFunction{u"sec", u"SEC"},
    SharedFunction{u"sgn", u"SGN"},
    SharedFunction{u"sin", u"SIN"},
    SharedFunction{u"sqr", u"SQR"},
    SharedFunction{u"sqrt", u"SQR"},
    SharedFunction{u"stef", u"STEF"},
    SharedFunction{u"tan", u"TAN"},
};

constexpr std::size_t longest_name = 9;

std::vector<Word> all_words() {
  std::vector<Word> words{
      {.name = u"x", .kind = Word::Kind::variable},
      {.name = u"pi", .kind = Word::Kind::constant, .value = std::numbers::pi},
      {.name = u"e", .kind = Word::Kind::constant, .value = std::numbers::e},
  };
  for (const auto& function : shared_functions) {
    words.push_back(
        {.name = function.name, .kind = Word::Kind::function, .entry = find_function(function.table_name)});
  }
  for (const auto& power : fractional_powers()) {
    words.push_back({.name = power.name, .kind = Word::Kind::function, .power = &power});
  }
  std::ranges::sort(words, {}, &Word::name);
  return words;
}

const Word* exact_word(TextView name) {
  static const std::vector<Word> words = all_words();
  const auto at = std::ranges::lower_bound(words, name, {}, &Word::name);
  return at != words.end() && at->name == name ? &*at : nullptr;
}

// Only these letters make words; the lower case of any other stays what it is and matches nothing.
constexpr char16_t lower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}

constexpr bool is_letter(char16_t c) { return lower(c) >= u'a' && lower(c) <= u'z'; }

}  // namespace

double Word::call(double x, EvaluatorHost& host) const {
  if (power != nullptr) return power->call(x);
  double result = 0;
  entry->call(x, host, result);
  return result;
}

const Word* longest_word(TextView text) {
  std::array<char16_t, longest_name> letters{};
  std::size_t length = 0;
  while (length < letters.size() && length < text.size() && is_letter(text[length])) {
    letters[length] = lower(text[length]);
    ++length;
  }
  const Word* word = nullptr;
  while (length > 0 && word == nullptr) word = exact_word({letters.data(), length--});
  return word;
}

}  // namespace tarnmill
