#pragma once

#include "Encodings.h"

#include <gtest/gtest.h>

/// A test that runs once for each processor, under the name of its section.
class InstrSetTest : public ::testing::TestWithParam<const sInstrSet*>
{
public:
    static std::string name(const ::testing::TestParamInfo<const sInstrSet*>& param)
    {
        return param.param->section.toStdString();
    }

protected:
    const sInstrSet& set() const { return *GetParam(); }
};
