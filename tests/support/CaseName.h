#pragma once

#include <gtest/gtest.h>

#include <string>

/// Names the cases of a table after their member `behaviour`.
struct CaseName
{
    template <typename Case>
    std::string operator()(const testing::TestParamInfo<Case> &tested) const
    {
        return tested.param.behaviour;
    }
};
