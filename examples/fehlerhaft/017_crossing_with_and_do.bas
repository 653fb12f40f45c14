Option Explicit

Public Sub Pruefen()
    Dim rs As Object
    Do Until rs.EOF
        With rs
            .MoveNext
    Loop
        End With
End Sub
