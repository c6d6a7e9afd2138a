// A tab that is of no interest here, so that it can be opened and left again: a title over a list
// of words.
#pragma once

#include <string>
#include <vector>

#include "phone/Parts.hpp"
#include "uikit/SimViewController.hpp"

class SimTableView;
class SimTableViewCell;

namespace phone {

class PlainListController : public SimViewController {
  public:
    static void define();

    static objc::Owned<NSObject> create(NSString title, std::vector<std::string> words);
    ~PlainListController();

    void loadView();
    // The table asks these.
    NSInteger numberOfRows(SimTableView *table, NSInteger section) const;
    SimTableViewCell *cellForRow(SimTableView *table, NSObject indexPath) const;

  private:
    objc::Owned<UIView> table_;
    std::vector<std::string> words_;
};

}  // namespace phone
