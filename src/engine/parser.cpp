#include "engine/parser.h"

#include <string>

#include "engine/checked.h"
#include "engine/function_table.h"
#include "engine/number_parts.h"
#include "engine/parity.h"
#include "engine/power.h"

namespace tarnmill {
namespace {

constexpr std::int32_t separator_error = 1;
constexpr std::int32_t syntax_error = 2;
constexpr std::int32_t symbols_error = 4;
constexpr std::int32_t brackets_error = 8;
constexpr std::int32_t arithmetic_error = 16;

// Positions are 16-bit whole numbers, so a longer text overflows them.
constexpr std::size_t longest_text = 32767;

// Each level of brackets costs three calls. Within this bound they fit any usual stack, also under
// sanitizers.
constexpr int deepest_nesting = 1000;
constexpr std::int32_t out_of_stack_space = 28;

char16_t first_of(TextView text) { return text.empty() ? u'\0' : text.front(); }

}  // namespace

// The pieces of one sum or term, held in the parser's list for as long as this lives.
class Parser::Pieces {
 public:
  Pieces(Parser& parser, TextView text, char16_t a, char16_t b)
      : pieces_{parser.pieces_}, first_{pieces_.size()} {
    parser.SplitAtLevel(text, a, b);
    last_ = pieces_.size();
  }
  Pieces(const Pieces&) = delete;
  Pieces& operator=(const Pieces&) = delete;
  ~Pieces() { pieces_.resize(first_); }

  // The next piece in order, which must exist. Inner sums may move the list, so pieces are found by number.
  TextView take() { return pieces_[first_ + taken_++]; }
  [[nodiscard]] bool empty() const { return first_ + taken_ == last_; }

 private:
  std::vector<TextView>& pieces_;
  std::size_t first_;
  std::size_t last_ = 0;
  std::size_t taken_ = 0;
};

// Counts the sums under way and refuses to go deeper than the stack reaches.
class Parser::Nesting {
 public:
  explicit Nesting(int& depth) : depth_{depth} {
    if (depth_ == deepest_nesting) throw Fault{out_of_stack_space, u"Out of stack space"};
    ++depth_;
  }
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;
  ~Nesting() { --depth_; }

 private:
  int& depth_;
};

double Parser::evaluate(TextView text, std::int32_t& error) {
  error_ = 0;
  double value = 0;
  try {
    if (text.size() > longest_text) throw Fault{FaultCode::Overflow};
    value = EvaluateSum(text);
  } catch (const Fault&) {
    error_ = arithmetic_error;
  }
  error = error_;
  return value;
}

double Parser::EvaluateSum(TextView text) {
  const Nesting nesting{depth_};
  double sum = 0;
  for (Pieces pieces{*this, text, u'+', u'-'}; !pieces.empty();) sum = add(sum, EvaluateTerm(pieces.take()));
  return sum;
}

double Parser::EvaluateTerm(TextView text) {
  if (error_ != 0) return 0;
  try {
    double value = 0;
    char16_t op = u'+';
    for (Pieces pieces{*this, text, u'*', u'/'}; !pieces.empty();) {
      const double factor = EvaluateFactor(pieces.take(), op);
      value = op == u'*' ? multiply(value, factor) : op == u'/' ? divide(value, factor) : add(value, factor);
    }
    return value;
  } catch (const Fault&) {
    error_ = arithmetic_error;
    return 0;
  }
}

double Parser::EvaluateFactor(TextView text, char16_t& op) {
  // The operator of the factor before stays in place here, so a quotient goes on to divide by this 0.
  if (error_ != 0) return 0;
  TextView rest = text;
  const char16_t sign = first_of(rest);
  const bool starts_with_operator = sign == u'-' || sign == u'+' || sign == u'*' || sign == u'/';
  if (starts_with_operator) rest.remove_prefix(1);
  op = starts_with_operator && sign != u'-' ? sign : u'+';

  double value = ReadOperand(rest);
  if (!rest.empty()) {
    const char16_t between = rest.front();
    rest.remove_prefix(1);
    const double second = ReadOperand(rest);
    if (between == u'^') {
      value = hinted_power(value, second, host_, error_);
    } else {
      error_ = symbols_error;
      value = 0;
    }
  }
  if (!rest.empty()) error_ = syntax_error;
  return sign == u'-' ? -value : value;
}

double Parser::ReadOperand(TextView& rest) {
  const char16_t first = first_of(rest);
  if (IsDigitValue(first)) return ReadNumber(rest);
  if (first == u'(') return EvaluateSum(ReadBracket(rest));
  TextView argument;
  const TextView name = ReadFunctionCall(rest, argument);
  return CallFunction(name, argument);
}

void Parser::SplitAtLevel(TextView text, char16_t a, char16_t b) {
  TextView rest = text;
  for (std::size_t at = FindOperator(rest, a, b); at != 0; at = FindOperator(rest, a, b)) {
    pieces_.push_back(rest.substr(0, at - 1));
    rest.remove_prefix(at - 1);
  }
  pieces_.push_back(rest);
}

std::size_t Parser::FindOperator(TextView text, char16_t a, char16_t b) {
  int level = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (c == a || c == b) {
      // A piece begins with its own operator.
      if (level == 0 && i > 0) return i + 1;
    } else if (c == u'(') {
      ++level;
    } else if (c == u')' && --level < 0) {
      error_ = brackets_error;
      return 0;
    }
  }
  return 0;
}

double Parser::ReadNumber(TextView& rest) {
  detail::NumberParts number;
  std::size_t taken = 0;
  bool separated = false;
  for (; taken < rest.size(); ++taken) {
    const char16_t c = rest[taken];
    if (IsDigitValue(c)) {
      number.plain += static_cast<char>(c);
    } else if (c == u',' && !separated) {
      separated = true;
      number.plain += '.';
    } else {
      if (c == u',') error_ = separator_error;
      break;
    }
  }
  rest.remove_prefix(taken);
  return detail::value_of(number);
}

TextView Parser::ReadBracket(TextView& rest) {
  int level = 1;
  for (std::size_t i = 1; i < rest.size(); ++i) {
    if (rest[i] == u'(') ++level;
    if (rest[i] == u')' && --level == 0) {
      const TextView inside = rest.substr(1, i - 1);
      rest.remove_prefix(i + 1);
      return inside;
    }
  }
  // The text stays, so the factor goes on with the bracket as if it were an operator.
  error_ = brackets_error;
  return {};
}

TextView Parser::ReadFunctionCall(TextView& rest, TextView& argument) {
  const std::size_t bracket = rest.find(u'(');
  if (bracket == TextView::npos) {
    error_ = syntax_error;
    rest = {};
    return {};
  }
  const TextView name = rest.substr(0, bracket);
  rest.remove_prefix(bracket);
  argument = ReadBracket(rest);
  return name;
}

double Parser::CallFunction(TextView name, TextView argument) {
  if (error_ != 0) return 0;
  double result = 0;
  try {
    // A failed argument doesn't stop the call, whose own fault may replace the code.
    const double x = EvaluateSum(argument);
    const FunctionEntry* entry = find_function(name);
    if (entry == nullptr) {
      error_ = syntax_error;
    } else {
      entry->call(x, host_, result);
    }
  } catch (const Fault&) {
    error_ = arithmetic_error;
  }
  return result;
}

}  // namespace tarnmill
