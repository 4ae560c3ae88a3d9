# What the engineer presses, and a part of what Orca then speaks.
step "Default of all options"
step "Loads" Down Down
step "Default output" Return
step "Full output" Down Down Down
step "Full output" Return
step "Default output" ctrl+z
step "Full output" ctrl+y
step "Default output" Delete
step "Not changed: The clipboard does not hold settings." ctrl+v
