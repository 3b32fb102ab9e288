#include "Fuzz.h"
#include "platform/HelpBook.h"

using namespace corvane;

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const std::string numbers = input.ConsumeRandomLengthString();
  const std::string strings = input.ConsumeRemainingBytesAsString();
  const auto contexts =
      ContextsOf(QByteArray::fromStdString(numbers), QByteArray::fromStdString(strings));
  DEMAND(contexts.size() <= numbers.size() / 8);
  return 0;
}
