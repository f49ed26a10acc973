// Reads two numbers as a person types them and prints their quotient as the calculator shows it.

#include <engine/fault.h>
#include <engine/number_text.h>
#include <engine/text.h>

#include <iostream>

int main() {
  const tarnmill::Regional regional;
  try {
    const double quotient =
        tarnmill::NumberFromTextStrict(u"1", regional) / tarnmill::NumberFromText(u"3 metres");
    std::cout << tarnmill::to_utf8(tarnmill::NumberToText(quotient, regional)) << '\n';
  } catch (const tarnmill::Fault& fault) {
    std::cerr << "fault " << fault.number() << '\n';
    return 1;
  }
  return 0;
}
