#include "shell/LicensedToAll.h"

#include "shell/Alert.h"

namespace facetta {

void LicensedToAll::openDialog() const {
    showAlert("This copy of Facetta is licensed to all and needs no activation.");
}

} // namespace facetta
