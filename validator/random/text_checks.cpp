#include <algorithm>
#include <array>
#include <bit>
#include <type_traits>

#include "checks/checks_of_type.h"
#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "text_generator.h"
#include "text_model.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/make_string.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

constexpr int textCount = 500;

template <typename T>
constexpr bool isVector = false;
template <typename Component, std::size_t Count>
constexpr bool isVector<Math::Vector<Component, Count>> = true;

/// What the model says of a text for a port of T.
template <typename T>
oracle::TextAnswer<T> answerOf(const std::string& text, const std::string& prefix) {
  if constexpr (isVector<T>) {
    const auto model = oracle::vectorModel<typename T::ComponentType>(text, T::componentCount,
                                                                      valueType<T>().name, prefix);
    if (!model.value) return {std::nullopt, model.messages};
    T vector;
    std::copy(model.value->begin(), model.value->end(), vector.components.begin());
    return {vector, {}};
  } else {
    return oracle::scalarModel<T>(text, prefix);
  }
}

template <typename T>
bool sameBits(const T& a, const T& b) {
  using Bytes = std::array<std::byte, sizeof(T)>;
  return std::bit_cast<Bytes>(a) == std::bit_cast<Bytes>(b);
}

template <typename T>
void compare(Session& session, const std::string& text) {
  PortHost host(session);
  host.giveText(Orvel::makeString({text.data(), text.size()}));
  const auto wanted =
      answerOf<T>(text, std::string("Input port 'port' (") + valueType<T>().name + "): ");
  const bool answer = host.setInput(Orvel::typeOf<T>());
  expect(answer == wanted.value.has_value(), "the answer to '" + text + "' is the model's");
  if (!answer) {
    std::vector<std::string> lines;
    for (const std::string& message : wanted.messages) lines.push_back("error " + message);
    expectLines("messages", host.messages(), lines);
    return;
  }
  const T* held = anyCast<T>(&host.value);
  expect(held != nullptr && sameBits(*held, *wanted.value),
         "the value of '" + text + "' is the model's, to the bit");
}

template <typename T, oracle::TextFamily Family>
void textsAgree(Session& session) {
  oracle::TextGenerator texts(session.seed(), Family);
  for (int i = 0; i < textCount; ++i) {
    const std::string text = texts.next();
    try {
      compare<T>(session, text);
    } catch (const Failed& reason) {
      throw Failed("text " + std::to_string(i) + " of seed " + std::to_string(session.seed()) +
                   ": " + reason.what());
    }
  }
}

}  // namespace

void addRandomTextChecks(CheckList& checks) {
  forEachRow(registeredTypes, [&](const auto& row) {
    using T = TypeOf<decltype(row)>;
    if constexpr (std::is_arithmetic_v<T> || isVector<T>) {
      addChecksOfType(
          checks, row.name,
          {{"random-text", "A {} port answers random texts as an exact model does.",
            textsAgree<T, oracle::TextFamily::mixed>},
           {"random-hard-text", "A {} port answers texts at the limits as an exact model does.",
            textsAgree<T, oracle::TextFamily::hardNumbers>}});
    }
  });
}

}  // namespace vtlcmd::validator
