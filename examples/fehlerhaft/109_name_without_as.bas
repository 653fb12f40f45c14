Option Explicit

Public Sub Pruefen()
    Name "alt.txt" "neu.txt"
End Sub
