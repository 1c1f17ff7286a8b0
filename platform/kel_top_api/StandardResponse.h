#pragma once

#include <string>

#include "kel_top_api/BaseResponse.h"

namespace kel_top_api
{

/// Answer of the calls that return no data.
class StandardResponse : public BaseResponse
{
public:
    std::string printResponse() override
    {
        return "StandardResponse Sent\n";
    }

    std::string additionalText; ///< the API's own
};

} // namespace kel_top_api
