// The globals every form may read; the program fills them at login.
#include "host/contract/U_glo.h"

namespace host {

std::string G_UserId;
std::string G_UserName;
std::string G_CoName;
std::string G_AmountFormat = "0.00";
std::string G_PriceFormat = "0.00";
std::string G_QtyFormat = "0.00";
std::string G_ckid;
std::string G_CkName;
std::string G_CKCOUNT_R, G_CKCOUNT_W;
std::string G_SK;
std::string G_SKSTR;
std::string GPARAM4, GPARAM24, GPARAM28;
std::string G_inifielname;

} // namespace host
