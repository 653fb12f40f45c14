Option Explicit

#If VBA7
Private mlngZeiger As LongPtr
#Else
Private mlngZeiger As Long
#End If
