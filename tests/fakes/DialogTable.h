// For the tests of the tables of dialogs.
#pragma once

#include <gtest/gtest.h>

#include <set>
#include <type_traits>
#include <utility>

#include "ui/Binding.h"

namespace folivant::fakes {

/// A record with `value` in a member, otherwise like `record`.
template <class Record, class Value>
Record With(Value Record::*member, std::type_identity_t<Value> value, Record record = {}) {
  record.*member = std::move(value);
  return record;
}

/// Each control has one row.
template <class Record, std::size_t Rows>
void ExpectNoControlTwice(const Binding<Record> (&table)[Rows]) {
  std::set<int> controls;
  for (const Binding<Record>& row : table) {
    EXPECT_TRUE(row.Control == kNoControl || controls.insert(row.Control).second) << row.Control;
  }
}

}  // namespace folivant::fakes
