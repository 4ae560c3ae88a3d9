# What the engineer presses, and a part of what Orca then speaks.
step "Output options"
step "Loads.|Default output.|Default: Default output." Down Down
step "List with 5 items" Return
step "Full output" Down Down Down
step "notification Loads. Full output. Changed. Default: Default output." Return
step "notification Loads. Default output. Default: Default output." ctrl+z
step "notification Loads. Full output. Changed. Default: Default output." ctrl+y
step "notification Loads. Default output. Default: Default output." Delete
step "notification Not changed: The clipboard does not hold settings." ctrl+v
