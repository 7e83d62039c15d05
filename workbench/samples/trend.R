# A straight line through employment over national product, for R.
fit <- lm(TOTEMP ~ GNP, data = wages)
summary(fit)
b <- coef(fit)
trend <- data.frame(YEAR = wages$YEAR, fitted = fitted(fit), above = ifelse(resid(fit) > 0, "yes", "no"))
