#include "engine/service/statement.h"

#include <algorithm>
#include <array>

#include "engine/service/service_fault.h"

namespace tarnmill {
namespace {

struct Head {
  TextView text;
  Statement::Kind kind;
};

constexpr std::array heads{
    Head{u"push(", Statement::Kind::push},          Head{u"intg(", Statement::Kind::integral},
    Head{u"avg(", Statement::Kind::average},        Head{u"diff(", Statement::Kind::derivative},
    Head{u"popall(", Statement::Kind::empty_stack},
};

bool begins_with(TextView text, TextView head) {
  return text.size() >= head.size() && lower_case(text.substr(0, head.size())) == head;
}

}  // namespace

Statement read_statement(TextView text) {
  const auto* head = std::ranges::find_if(
      heads, [text](const Head& candidate) { return begins_with(text, candidate.text); });
  if (head == heads.end()) return {.argument = text};
  if (text.back() != u')') raise_unmatched_brackets();
  const TextView argument = text.substr(head->text.size(), text.size() - head->text.size() - 1);
  if (head->kind == Statement::Kind::empty_stack && !argument.empty()) raise_wrong_syntax();
  return {.kind = head->kind, .argument = argument};
}

}  // namespace tarnmill
