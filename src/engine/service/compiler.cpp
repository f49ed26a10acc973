#include "engine/service/compiler.h"

#include <utility>

#include "engine/service/service_fault.h"

namespace tarnmill {
namespace {

// An operator or bracket that waits for what comes behind it.
struct Waiting {
  enum class Kind { combination, negation, bracket, call };
  Kind kind;
  char symbol = ' ';
  const Word* function = nullptr;
};

constexpr int negation_precedence = 3;
constexpr int power_precedence = 4;

constexpr int precedence_of(char symbol) {
  switch (symbol) {
    case '+':
    case '-':
      return 1;
    case '*':
    case '/':
      return 2;
    default:
      return power_precedence;
  }
}

constexpr char symbol_of(Token::Kind kind) {
  switch (kind) {
    case Token::Kind::plus:
      return '+';
    case Token::Kind::minus:
      return '-';
    case Token::Kind::over:
      return '/';
    case Token::Kind::power:
      return '^';
    default:
      return '*';  // written or not
  }
}

// What waits is kept in a list of its own and not in recursive calls, so that brackets may nest to any depth.
class Compiler {
 public:
  Compiler(TextView expression, Dialect dialect)
      : lexer_{expression}, program_{dialect}, has_variable_{dialect == Dialect::function} {}

  Program compiled() {
    advance();
    take_operand();
    while (token_.kind != Token::Kind::end) {
      if (token_.kind == Token::Kind::close) {
        close_bracket();
      } else {
        take_operator();
        take_operand();
      }
    }
    finish_until(0);
    if (!waiting_.empty()) raise_unmatched_brackets();
    return std::move(program_);
  }

 private:
  void advance() { token_ = lexer_.next(); }

  // Takes signs and opening brackets up to and including the next number, variable or constant.
  void take_operand() {
    while (true) {
      switch (token_.kind) {
        case Token::Kind::plus:
        case Token::Kind::minus:
          take_sign();
          break;
        case Token::Kind::open:
          waiting_.push_back({.kind = Waiting::Kind::bracket});
          advance();
          break;
        case Token::Kind::number:
          program_.append_number(token_.number);
          return advance();
        case Token::Kind::word:
          if (take_word()) return;
          break;
        default:
          raise_wrong_syntax();
      }
    }
  }

  void take_sign() {
    const bool minus = token_.kind == Token::Kind::minus;
    advance();
    if (!minus) return;
    if (token_.kind == Token::Kind::number) {
      token_.number = -token_.number;
    } else {
      waiting_.push_back({.kind = Waiting::Kind::negation});
    }
  }

  // Tells whether the word is a whole operand; a function has its argument still to come.
  bool take_word() {
    const Word& word = *token_.word;
    advance();
    switch (word.kind) {
      case Word::Kind::variable:
        if (!has_variable_) raise_unknown_name();
        program_.append_variable();
        return true;
      case Word::Kind::constant:
        program_.append_number(word.value);
        return true;
      case Word::Kind::function:
        break;
    }
    if (token_.kind != Token::Kind::open) raise_wrong_syntax();
    waiting_.push_back({.kind = Waiting::Kind::call, .function = &word});
    advance();
    return false;
  }

  void take_operator() {
    const char symbol = symbol_of(token_.kind);
    // An operator to the left with the same precedence goes first. So do powers: "exp(x)^2" comes here as
    // "e^(x)^2" and means the square of the exponential.
    finish_until(precedence_of(symbol));
    waiting_.push_back({.kind = Waiting::Kind::combination, .symbol = symbol});
    const bool written = token_.kind != Token::Kind::number && token_.kind != Token::Kind::word &&
                         token_.kind != Token::Kind::open;
    if (written) advance();
  }

  void close_bracket() {
    finish_until(0);
    if (waiting_.empty()) raise_unmatched_brackets();
    if (waiting_.back().kind == Waiting::Kind::call) program_.append_call(*waiting_.back().function);
    waiting_.pop_back();
    advance();
  }

  // Finishes the operators of at least this precedence, back to the last open bracket.
  void finish_until(int precedence) {
    while (!waiting_.empty()) {
      const Waiting& last = waiting_.back();
      if (last.kind == Waiting::Kind::combination) {
        if (precedence_of(last.symbol) < precedence) return;
        program_.append_operator(last.symbol);
      } else if (last.kind == Waiting::Kind::negation) {
        if (negation_precedence < precedence) return;
        program_.append_negation();
      } else {
        return;
      }
      waiting_.pop_back();
    }
  }

  Lexer lexer_;
  Token token_;
  Program program_;
  bool has_variable_;
  std::vector<Waiting> waiting_;
};

}  // namespace

Program compile(TextView expression, Dialect dialect) { return Compiler{expression, dialect}.compiled(); }

}  // namespace tarnmill
