#include "PlainModel.h"

namespace Bench::Plain {

Qualified::Qualified(Document& owner) : document(owner) {}

Qualified::Qualified(const Qualified& other)
    : document(other.document), qualifier(other.qualifier), name(other.name), description(other.description),
      isImported(other.isImported), sourceInfo(other.sourceInfo), attributes(CopyAll(other.attributes)),
      objectIdentifier(other.objectIdentifier), uniquenessId(other.uniquenessId) {}

Qualified::~Qualified() = default;

} // namespace Bench::Plain
