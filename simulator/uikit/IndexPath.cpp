// Index paths of two numbers over Foundation's of any length.
#include "uikit/IndexPath.hpp"

#include <array>

#include "uikit/Registration.hpp"

namespace sim {
namespace {

NSInteger numberAt(NSObject indexPath, NSUInteger position) {
    return indexPath != nullptr
               ? objc::send<NSInteger(NSUInteger)>(indexPath, "indexAtPosition:"_sel, position)
               : -1;
}

NSObject indexPathForRow(NSInteger row, NSInteger section) { return indexPath(section, row); }

}  // namespace

NSObject indexPath(NSInteger section, NSInteger row) {
    const std::array<NSUInteger, 2> numbers{static_cast<NSUInteger>(section),
                                            static_cast<NSUInteger>(row)};
    return objc::send<NSObject(const NSUInteger *, NSUInteger)>(
        "NSIndexPath"_cls, "indexPathWithIndexes:length:"_sel, numbers.data(), numbers.size());
}

NSInteger sectionOf(NSObject indexPath) { return numberAt(indexPath, 0); }

NSInteger rowOf(NSObject indexPath) { return numberAt(indexPath, 1); }

void addIndexPathMessages() {
    const Class cls = "NSIndexPath"_cls;
    addMethod(cls, "section"_sel, objc::receiving<&sectionOf>);
    addMethod(cls, "row"_sel, objc::receiving<&rowOf>);
    addMethod(object_getClass(objc::asObject(cls)), "indexPathForRow:inSection:"_sel,
              objc::function<&indexPathForRow>);
}

}  // namespace sim
